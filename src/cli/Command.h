#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>
#include <QTextStream>

namespace cli {

// One verb of tallyline-cli. It reads its own options, writes its result to
// `out` and every complaint to `err`, and returns the exit status; tests give
// it streams of their own.
class Command
{
public:
    virtual ~Command() = default;

    virtual QString name() const = 0;
    // One line for the list of commands.
    virtual QString summary() const = 0;
    // The words after the verb, e.g. "batting|fielding|pitching|standings".
    virtual QString arguments() const { return {}; }

    // `args` begins with the verb itself.
    int run(const QStringList &args, QTextStream &out, QTextStream &err);

protected:
    // Adds the verb's own options (the common ones are already there).
    virtual void addOptions(QCommandLineParser &parser) = 0;
    // Runs after the options were read and --help was handled.
    virtual int execute(const QCommandLineParser &parser, QTextStream &out, QTextStream &err) = 0;
};

// The exit statuses.
enum Status : int { Ok = 0, Failed = 1, Usage = 2, Busy = 3 };

// The options every verb that reads a season takes.
void addSeasonOptions(QCommandLineParser &parser);

} // namespace cli
