#include "support/StackCleaner.h"

#include <cstring>

#include <QList>
#include <QRegularExpression>

#include <cxxabi.h>
#include <execinfo.h>

#include <cstdlib>
#include <new>
#include <regex>
#include <stdexcept>
#include <typeinfo>

namespace StackCleaner {

QStringList ParseParams(const QString &codes)
{
    QStringList result;
    QString buffer;
    QList<std::pair<qsizetype, int>> arrays; // entry, dimensions
    QList<qsizetype> byReference;
    int state = 0;
    for (const QChar ch : codes) {
        switch (state) {
        case 0:
            switch (ch.unicode()) {
            case u'i':
                state = 2;
                break;
            case u'u':
                state = 3;
                break;
            case u'o':
                state = 1;
                break;
            case u'b':
                result.append(QStringLiteral("boolean"));
                break;
            case u's':
                result.append(QStringLiteral("string"));
                break;
            case u'f':
                state = 4;
                break;
            case u'c':
                result.append(QStringLiteral("color"));
                break;
            case u'A':
                state = 5;
                break;
            case u'&':
                byReference.append(result.size());
                break;
            default:
                break; // anything else between types is passed over
            }
            break;
        case 1:
            if (ch == u'<')
                break;
            if (ch == u'>') {
                result.append(buffer);
                buffer.clear();
                state = 0;
            } else {
                buffer += ch;
            }
            break;
        case 2:
        case 3:
            if (ch.isDigit()) {
                result.append((state == 2 ? QStringLiteral("int") : QStringLiteral("uint")) +
                              QString::number(ch.digitValue() * 8));
                state = 0;
            }
            break;
        case 4:
            if (ch == u'4' || ch == u'8') {
                result.append(ch == u'4' ? QStringLiteral("single") : QStringLiteral("double"));
                state = 0;
            }
            break;
        case 5:
            if (ch.isDigit()) {
                arrays.append({result.size(), ch.digitValue()});
                state = 0;
            }
            break;
        }
    }
    for (const auto &[entry, dimensions] : arrays) {
        if (entry < result.size())
            result[entry] += u'(' + QString(std::max(0, dimensions - 1), u',') + u')';
    }
    for (qsizetype entry : byReference) {
        if (entry < result.size())
            result[entry] = QStringLiteral("byref ") + result.at(entry);
    }
    return result;
}

QString CleanMangledFunction(const QString &frame)
{
    // The program's start-up: the entry point and the event loop that
    // every stack passes through tell the reader nothing.
    // They go by name, whatever parameter codes the platform gave them.
    static const QStringList startUp = {
        QStringLiteral("_NewAppInstance"),
        QStringLiteral("_Main"),
        QStringLiteral("main"),
        QStringLiteral("QCoreApplication.exec"),
        QStringLiteral("TallylineApplication.notify"),
    };
    if (frame == u"% main" || startUp.contains(frame.section(u'%', 0, 0)))
        return {};
    const QStringList fields = frame.split(u'%');
    if (fields.size() < 3)
        return {};
    QString name = fields.at(0);
    QString resultType;
    if (!fields.at(1).isEmpty()) {
        const QStringList types = ParseParams(fields.at(1));
        if (!types.isEmpty())
            resultType = types.last();
    }
    QStringList parameters = ParseParams(fields.at(2));

    if (name.contains(u'$')) {
        if (!parameters.isEmpty())
            parameters[0] = QStringLiteral("extends ") + parameters.at(0);
        name.remove(u'$');
    } else if (!parameters.isEmpty() && name.section(u'.', 0, 0) == parameters.first()) {
        parameters.removeFirst(); // the receiver of a method
    }
    if (name.contains(u'=')) {
        if (!parameters.isEmpty())
            parameters.last() = QStringLiteral("assigns ") + parameters.last();
        name.remove(u'=');
    }
    if (name.contains(u'*')) {
        if (!parameters.isEmpty())
            parameters.last() = QStringLiteral("paramarray ") + parameters.last();
        name.remove(u'*');
    }
    QString word;
    if (name.contains(u'#')) {
        word = QStringLiteral("Event");
        name.remove(u'#');
    } else {
        word = resultType.isEmpty() ? QStringLiteral("Sub") : QStringLiteral("Function");
    }
    QString line = word + u' ' + name;
    line += parameters.isEmpty() ? QStringLiteral("()")
                                 : QStringLiteral("( ") + parameters.join(QStringLiteral(", ")) + QStringLiteral(" )");
    if (!resultType.isEmpty())
        line += QStringLiteral(" as ") + resultType;
    return line;
}

QStringList CleanStack(const QStringList &frames)
{
    QStringList lines;
    for (const QString &frame : frames) {
        const QString line = CleanMangledFunction(frame);
        if (!line.isEmpty())
            lines.append(line);
    }
    return lines;
}

namespace {

// One C++ parameter type as a type code.
QString typeCode(QString type)
{
    type = type.trimmed();
    QString prefix;
    // A reference the routine may change is by reference; a const one
    // reads as a value.
    static const QRegularExpression constWord(QStringLiteral("\\bconst\\b"));
    if (type.endsWith(u'&') && !constWord.match(type).hasMatch())
        prefix = QStringLiteral("&");
    type.remove(QRegularExpression(QStringLiteral("^const\\s+|\\s*const\\b|[&*]+$")));
    type = type.trimmed();
    while (type.endsWith(u'&') || type.endsWith(u'*'))
        type.chop(1);
    type = type.trimmed();
    static const QHash<QString, QString> simple = {
        {QStringLiteral("bool"), QStringLiteral("b")},
        {QStringLiteral("char"), QStringLiteral("i1")},
        {QStringLiteral("signed char"), QStringLiteral("i1")},
        {QStringLiteral("unsigned char"), QStringLiteral("u1")},
        {QStringLiteral("short"), QStringLiteral("i2")},
        {QStringLiteral("unsigned short"), QStringLiteral("u2")},
        {QStringLiteral("int"), QStringLiteral("i4")},
        {QStringLiteral("unsigned int"), QStringLiteral("u4")},
        {QStringLiteral("long"), QStringLiteral("i8")},
        {QStringLiteral("long long"), QStringLiteral("i8")},
        {QStringLiteral("unsigned long"), QStringLiteral("u8")},
        {QStringLiteral("unsigned long long"), QStringLiteral("u8")},
        {QStringLiteral("float"), QStringLiteral("f4")},
        {QStringLiteral("double"), QStringLiteral("f8")},
        {QStringLiteral("QString"), QStringLiteral("s")},
        {QStringLiteral("QStringView"), QStringLiteral("s")},
        {QStringLiteral("QColor"), QStringLiteral("c")},
    };
    const auto it = simple.constFind(type);
    if (it != simple.constEnd())
        return prefix + *it;
    if (type == u"QStringList")
        return prefix + QStringLiteral("A1s");
    static const QRegularExpression list(QStringLiteral("^(?:QList|QVector|std::vector)<(.*)>$"));
    if (const auto m = list.match(type); m.hasMatch())
        return prefix + QStringLiteral("A1") + typeCode(m.captured(1));
    // Other types by their last name, without template arguments.
    QString shortName = type.section(u'<', 0, 0);
    return prefix + QStringLiteral("o<") + shortName + u'>';
}

// Splits "a, b<c, d>, e" at the commas outside angle brackets and parentheses.
QStringList splitParameters(const QString &text)
{
    QStringList parts;
    int depth = 0;
    QString current;
    for (const QChar ch : text) {
        if (ch == u'<' || ch == u'(')
            ++depth;
        else if (ch == u'>' || ch == u')')
            --depth;
        if (ch == u',' && depth == 0) {
            parts.append(current);
            current.clear();
        } else {
            current += ch;
        }
    }
    if (!current.trimmed().isEmpty())
        parts.append(current);
    return parts;
}

} // namespace

QString frameFromSymbol(const QString &symbol)
{
    // "binary(mangled+0x1f) [0xaddress]": the mangled name is between the
    // parenthesis and the offset.
    const qsizetype open = symbol.indexOf(u'(');
    const qsizetype plus = symbol.indexOf(u'+', open);
    if (open < 0 || plus < 0 || plus == open + 1)
        return symbol;
    const QByteArray mangled = symbol.mid(open + 1, plus - open - 1).toLatin1();
    int status = 0;
    char *demangled = abi::__cxa_demangle(mangled.constData(), nullptr, nullptr, &status);
    if (status != 0 || !demangled)
        return symbol;
    const QString signature = QString::fromLatin1(demangled);
    std::free(demangled);
    if (signature == u"main")
        return QStringLiteral("% main");

    // "ns::Class::method(int, QString const&) const"
    const qsizetype paren = signature.indexOf(u'(');
    if (paren < 0)
        return symbol;
    const qsizetype close = signature.lastIndexOf(u')');
    QString qualified = signature.left(paren);
    qualified.replace(QStringLiteral("::"), QStringLiteral("."));
    const QStringList parameters = splitParameters(signature.mid(paren + 1, close - paren - 1));
    QString codes;
    // A method's receiver comes first, as the frame form has it.
    const QStringList names = qualified.split(u'.');
    if (names.size() >= 2 && !names.at(names.size() - 2).isEmpty() && names.at(names.size() - 2).at(0).isUpper())
        codes += QStringLiteral("o<") + names.at(names.size() - 2) + u'>';
    for (const QString &p : parameters) {
        if (p.trimmed() != u"void")
            codes += typeCode(p);
    }
    // The frame names the routine by its class and name only.
    const QString shortName = names.size() >= 2 ? names.at(names.size() - 2) + u'.' + names.last() : names.last();
    return shortName + QStringLiteral("%%") + codes;
}

namespace {

QStringList framesOf(void *const *addresses, int count, int skip)
{
    QStringList frames;
    char **symbols = backtrace_symbols(addresses, count);
    if (!symbols)
        return frames;
    for (int i = skip; i < count; ++i)
        frames.append(frameFromSymbol(QString::fromLocal8Bit(symbols[i])));
    std::free(symbols);
    return frames;
}

// Raw addresses only while throwing: naming them is left for the report.
thread_local void *t_throwStack[64];
thread_local int t_throwDepth = 0;
thread_local const void *t_thrownObject = nullptr;

} // namespace

QStringList currentFrames()
{
    void *addresses[64];
    const int count = backtrace(addresses, 64);
    return framesOf(addresses, count, 1);
}

void recordThrow(const void *exception)
{
    t_throwDepth = backtrace(t_throwStack, 64);
    t_thrownObject = exception;
}

QStringList framesOfLastThrow()
{
    // Without this function's caller in the throw trace and recordThrow.
    return framesOf(t_throwStack, t_throwDepth, 2);
}

QStringList framesOfThrow(const std::exception_ptr &error)
{
#if defined(__GLIBCXX__)
    // An exception_ptr of the GNU library holds the thrown object's address,
    // the one its throw was noted with.
    static_assert(sizeof(std::exception_ptr) == sizeof(void *));
    const void *object = nullptr;
    std::memcpy(&object, &error, sizeof object); // NOLINT(bugprone-undefined-memory-manipulation): read, not copied
    if (!error || !object || object != t_thrownObject)
        return {};
    return framesOfLastThrow();
#else
    Q_UNUSED(error);
    return {};
#endif
}

} // namespace StackCleaner

QString TypeOfException(const std::exception_ptr &error)
{
    if (!error)
        return {};
    try {
        std::rethrow_exception(error);
    } catch (const std::bad_cast &) {
        return QStringLiteral("IllegalCastException");
    } catch (const std::out_of_range &) {
        return QStringLiteral("OutOfBoundsException");
    } catch (const std::bad_alloc &) {
        return QStringLiteral("OutOfMemoryException");
    } catch (const std::regex_error &) {
        return QStringLiteral("RegExException");
    } catch (const std::invalid_argument &) {
        return QStringLiteral("TypeMismatchException");
    } catch (const std::domain_error &) {
        return QStringLiteral("UnsupportedFormatException");
    } catch (...) {
        return {};
    }
}
