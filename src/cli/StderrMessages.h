#pragma once

#include "platform/Messages.h"

#include <QTextStream>

namespace cli {

// The message service of a process without a window: every message the
// cores would show goes to standard error, and every question is answered
// with its cancel button, so nothing is done that a coach would be asked about.
class StderrMessages final : public platform::MessageService
{
public:
    explicit StderrMessages(QTextStream &err) : m_err(err) {}
    std::uint8_t showMsgDlog(const QString &message, const QString &explanation, const QString &actionCaption,
                             const QString &altCaption) override
    {
        m_err << message;
        if (!explanation.isEmpty())
            m_err << " " << explanation;
        m_err << Qt::endl;
        return platform::MsgCancel;
    }
    void msgBox(const QString &text) override { m_err << text << Qt::endl; }
    void notice(const QString &message, const QString &explanation) override
    {
        m_err << message << Qt::endl << explanation << Qt::endl;
    }

private:
    QTextStream &m_err;
};

} // namespace cli
