#pragma once

#include <oda/OdString.h>

namespace ca {

// Stand-in for the application's command line input: everything typed or
// chosen at the command line arrives here. The application installs its own
// processor by constructing it; until then get() answers one that drops all
// input, as a process without a command line would.
class InputProcessor
{
public:
    // Where a command word came from.
    enum EInputType {
        kKeyboard = 1,
        kMenu = 2,
        kToolbar = 4,
        kScript = 8,
        kContextDialog = 16,
    };

    static InputProcessor& get();

    virtual ~InputProcessor();
    InputProcessor(const InputProcessor&) = delete;
    InputProcessor& operator=(const InputProcessor&) = delete;

    // One character, as if typed: 13 is Enter, 27 Escape, 8 Backspace.
    virtual void onChar(wchar_t character);
    // A command or option word, as if typed and entered.
    virtual void onCommand(const OdString& word, EInputType type, int flags);

protected:
    // Installs the new processor as the one get() answers.
    InputProcessor();
};

} // namespace ca
