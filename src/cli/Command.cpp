#include "cli/Command.h"

namespace cli {

int Command::run(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(summary());
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Shows this help and stops."));
    parser.addOption(help);
    addOptions(parser);
    if (!parser.parse(args)) {
        err << name() << ": " << parser.errorText() << Qt::endl;
        return Usage;
    }
    if (parser.isSet(help)) {
        // The parser's own help text names the program file; ours names the verb.
        QString text = parser.helpText();
        const qsizetype usageEnd = text.indexOf(u'\n');
        text.replace(0, usageEnd,
                     QStringLiteral("Usage: tallyline-cli ") + name() +
                         (arguments().isEmpty() ? QString() : u' ' + arguments()) + QStringLiteral(" [options]"));
        out << text;
        out.flush();
        return Ok;
    }
    const int status = execute(parser, out, err);
    out.flush();
    err.flush();
    return status;
}

void addSeasonOptions(QCommandLineParser &parser)
{
    parser.addOption({QStringLiteral("data-dir"),
                      QStringLiteral("Works on the season files in <dir> instead of the user's data folder."),
                      QStringLiteral("dir")});
    parser.addOption({QStringLiteral("season"),
                      QStringLiteral("The season to read (default: the program's current season)."),
                      QStringLiteral("name")});
}

} // namespace cli
