#pragma once

#include <QString>
#include <cstdint>

namespace platform {

// Which button ended the standard message dialog. Callers compare with
// Action to go ahead; the numeric values are the ones the screens test.
enum MsgResult : std::uint8_t { MsgAction = 0, MsgCancel = 1, MsgAlternate = 2 };

// Modal questions and notices. The Qt implementation shows real dialogs;
// tests install a fake that answers from a script and records what was asked.
class MessageService
{
public:
    virtual ~MessageService() = default;

    // The two-line message dialog with the caution icon. The cancel button
    // is always there; the alternate button only when altCaption isn't empty.
    virtual std::uint8_t showMsgDlog(const QString &message, const QString &explanation, const QString &actionCaption,
                                     const QString &altCaption) = 0;

    // A plain one-line message box with an OK button.
    virtual void msgBox(const QString &text) = 0;

    // A notice with the caution icon, its explanation and one OK button:
    // what the coach should know, with nothing to choose.
    virtual void notice(const QString &message, const QString &explanation) = 0;
};

} // namespace platform
