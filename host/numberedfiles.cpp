#include "host/numberedfiles.h"

#include "host/failure.h"
#include "host/paths.h"
#include "host/plainfile.h"
#include "host/replacement.h"

#include <cerrno>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace host {

namespace {

constexpr int SourceNumber = 1;
constexpr int DestinationNumber = 2;

// The source of a text knows what went wrong, but not in which file.
template <typename Operation> auto namingTheFile(const QString &path, Operation operation)
{
    try {
        return operation();
    } catch (const Failure &failure) {
        throw Failure(failure.number(), failure.operation(), path);
    }
}

} // namespace

void NumberedFiles::openForInput(int number, const QString &path)
{
    mustBeFree(number, path);
    m_open.emplace(number, OpenFile { path, TextSource(textOf(path)) });
}

void NumberedFiles::openText(int number, const QString &path, const QString &text)
{
    mustBeFree(number, path);
    m_open.emplace(number, OpenFile { path, TextSource(text) });
}

void NumberedFiles::readInstead(const QString &path, const QString &text)
{
    m_instead.insert_or_assign(path, text);
}

QString NumberedFiles::textOf(const QString &path) const
{
    const auto instead = m_instead.find(path);
    return instead == m_instead.end() ? decodeText(readBytes(path)).text : instead->second;
}

QString NumberedFiles::readLine(int number)
{
    OpenFile &file = open(number, "read a line");
    return namingTheFile(file.path, [&file] { return file.source.readLine(); });
}

QString NumberedFiles::readField(int number)
{
    OpenFile &file = open(number, "read a field");
    return namingTheFile(file.path, [&file] { return file.source.readField(); });
}

bool NumberedFiles::atEnd(int number)
{
    return open(number, "look for the end").source.atEnd();
}

QString NumberedFiles::rest(int number)
{
    return open(number, "read the rest").source.restOfText();
}

void NumberedFiles::close(int number)
{
    m_open.erase(number);
}

void NumberedFiles::closeAll()
{
    m_open.clear();
}

bool NumberedFiles::isOpen(int number) const
{
    return m_open.contains(number);
}

void NumberedFiles::rewrite(
    const QString &path, const QString &scratchName, const std::function<QString(const QString &)> &change)
{
    mustBeFree(path);
    Replacement replacement(path, scratchName);
    const std::optional<QByteArray> old = replacement.read();
    if (!old)
        throw Failure(FileNotFound, u"rewrite a file"_s, path);
    takeNumbers(path);
    DecodedText text = decodeText(*old);
    text.text = change(text.text);
    finish(replacement, text);
}

void NumberedFiles::replace(const QString &path, const QString &scratchName, const QString &text)
{
    mustBeFree(path);
    Replacement replacement(path, scratchName);
    const std::optional<QByteArray> old = replacement.read();
    takeNumbers(path);
    finish(replacement, { text, old ? decodeText(*old).encoding : Encoding::Windows1252, false });
}

void NumberedFiles::mustBeFree(int number, const QString &path) const
{
    if (isOpen(number))
        throw Failure(FileAlreadyOpen, u"open a file under number %1, which is in use"_s.arg(number), path);
}

void NumberedFiles::mustBeFree(const QString &path) const
{
    if (isOpen(SourceNumber) || isOpen(DestinationNumber))
        throw Failure(FileAlreadyOpen, u"rewrite a file while its numbers are in use"_s, path);
}

void NumberedFiles::takeNumbers(const QString &path)
{
    for (const int number : { SourceNumber, DestinationNumber })
        m_open.emplace(number, OpenFile { path, TextSource(QString()) });
}

void NumberedFiles::finish(Replacement &replacement, const DecodedText &text)
{
    const auto giveNumbersBack = [this] {
        close(SourceNumber);
        close(DestinationNumber);
    };
    try {
        replacement.write(encodeText(text));
    } catch (const ReadOnlyPlace &) {
        giveNumbersBack();
        throw;
    }
    giveNumbersBack();
    replacement.commit();
}

NumberedFiles::OpenFile &NumberedFiles::open(int number, const char *operation)
{
    const auto file = m_open.find(number);
    if (file == m_open.end())
        throw Failure(BadFileNumber,
            u"%1 under number %2, which isn't open"_s.arg(QLatin1StringView(operation)).arg(number));
    return file->second;
}

QByteArray readBytes(const QString &path, qint64 most, std::optional<FileState> *state)
{
    const QByteArray found = findOnDisk(path);
    if (found.isEmpty())
        throw Failure(FileNotFound, u"open a file"_s, path);
    std::optional<PlainFile> file = readPlainFile(AT_FDCWD, found, O_RDONLY, most);
    if (!file && errno == ENOENT)
        throw Failure(FileNotFound, u"open a file"_s, path);
    if (!file)
        throw Failure(PathAccess, u"read a file"_s, path);
    if (state)
        *state = stateOf(file->status);
    return file->bytes;
}

std::optional<QByteArray> readIfThere(const QString &path)
{
    std::optional<PlainFile> file = readPlainFile(AT_FDCWD, nameToDisk(path), O_RDONLY);
    if (file)
        return file->bytes;
    if (errno != ENOENT)
        throw Failure(PathAccess, u"read a file"_s, path);
    const bool otherwiseSpelled = exists(path);
    return otherwiseSpelled ? std::optional(readBytes(path)) : std::nullopt;
}

} // namespace host
