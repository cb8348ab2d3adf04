#include "commandline.h"

#include <QMetaObject>
#include <QObject>

#include <ca/InputProcessor.h>

namespace dbr {

namespace {

constexpr wchar_t enterKey = 13;
constexpr wchar_t escapeKey = 27;

template<typename Input>
void post(QObject* context, Input input)
{
    if (context)
        QMetaObject::invokeMethod(context, std::move(input), Qt::QueuedConnection);
}

void postChar(QObject* context, wchar_t character)
{
    post(context, [character] { ca::InputProcessor::get().onChar(character); });
}

} // namespace

void acceptCommandLine(QObject* context)
{
    postChar(context, enterKey);
}

void rejectCommandLine(QObject* context)
{
    postChar(context, escapeKey);
}

void invokeCommandLineOption(QObject* context, OdString option)
{
    if (option.isEmpty())
        return;
    if (option.getAt(0) != L'_')
        option = OdString("_") + option;
    post(context, [option] { ca::InputProcessor::get().onCommand(option, ca::InputProcessor::kContextDialog, 0); });
}

} // namespace dbr
