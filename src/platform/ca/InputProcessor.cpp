#include "InputProcessor.h"

namespace ca {

namespace {

InputProcessor* s_installed = nullptr;

// Answers get() while the application has installed no processor.
class NoCommandLine : public InputProcessor
{
};

} // namespace

InputProcessor& InputProcessor::get()
{
    if (s_installed)
        return *s_installed;
    // It installs itself like any processor, until the application's replaces it.
    static NoCommandLine none;
    return none;
}

InputProcessor::InputProcessor()
{
    s_installed = this;
}

InputProcessor::~InputProcessor()
{
    if (s_installed == this)
        s_installed = nullptr;
}

void InputProcessor::onChar(wchar_t) {}

void InputProcessor::onCommand(const OdString&, EInputType, int) {}

} // namespace ca
