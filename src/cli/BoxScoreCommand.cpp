#include "cli/BoxScoreCommand.h"

#include "cli/OutputFile.h"
#include "cli/SeasonAccess.h"
#include "stats/BoxScore.h"

#include <QDir>
#include <QFile>

namespace cli {

void BoxScoreCommand::addOptions(QCommandLineParser &parser)
{
    addSeasonOptions(parser);
    parser.addOption({QStringLiteral("format"), QStringLiteral("text, pdf or rows (default text)."),
                      QStringLiteral("format"), QStringLiteral("text")});
    parser.addOption({{QStringLiteral("o"), QStringLiteral("output")},
                      QStringLiteral("The file to write (default: standard output; a PDF needs one)."),
                      QStringLiteral("file")});
    parser.addPositionalArgument(QStringLiteral("GAME-ID"), QStringLiteral("the game's number (its Games row)"));
}

int BoxScoreCommand::execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err)
{
    const QStringList words = parser.positionalArguments();
    bool numeric = false;
    const qint64 gameID = words.value(0).toLongLong(&numeric);
    if (words.size() != 1 || !numeric) {
        err << "box-score: name one game by its number" << Qt::endl;
        return Usage;
    }
    const QString format = parser.value(QStringLiteral("format"));
    const QString output = parser.value(QStringLiteral("output"));
    if (!QStringList{QStringLiteral("text"), QStringLiteral("pdf"), QStringLiteral("rows")}.contains(format)) {
        err << "box-score: --format is text, pdf or rows" << Qt::endl;
        return Usage;
    }
    if (format == QLatin1String("pdf") && (output.isEmpty() || output == QLatin1String("-"))) {
        err << "box-score: a PDF needs --output FILE" << Qt::endl;
        return Usage;
    }
    SeasonAccess season(parser, err);
    myDB *db = season.open();
    if (!db)
        return Failed;
    const QString schedID =
        db->scalar(QStringLiteral("SELECT schedID FROM Games WHERE gameID = ?"), {gameID}).toString();
    const std::optional<stats::BoxScore> box = schedID.isEmpty() ? std::nullopt : stats::BoxScore::read(*db, schedID);
    if (!box) {
        err << "box-score: the season has no game " << gameID << Qt::endl;
        return Failed;
    }
    if (format == QLatin1String("rows"))
        return writeOutput(output, box->pipeRows().toUtf8(), out, err) ? Ok : Failed;
    if (format == QLatin1String("text"))
        return writeOutput(output, box->text().toUtf8(), out, err) ? Ok : Failed;

    const QString title = QStringLiteral("Box Score - ") + box->teams[0].name + QStringLiteral(" at ") +
                          box->teams[1].name + (box->date.isEmpty() ? QString() : u' ' + box->date);
    // Written beside the target and renamed over it when complete.
    const QString part = output + QStringLiteral(".part");
    QFile::remove(output);
    if (!stats::writeOnePagePdf(part, title, box->text()) || !QFile::rename(part, output)) {
        QFile::remove(part);
        err << "The file \"" << QDir::toNativeSeparators(output) << "\" couldn't be written." << Qt::endl;
        return Failed;
    }
    return Ok;
}

} // namespace cli
