#include "platform/IniFile.h"

#include "platform/ReadFile.h"
#include "platform/ReplaceFile.h"
#include "platform/RunTimeError.h"

#include <QFile>

#include <ctime>
#include <sys/stat.h>

namespace varnhold {

namespace {

constexpr qint64 nanoseconds = 1'000'000'000;

qint64 inNanoseconds(const timespec& time)
{
    return time.tv_sec * nanoseconds + time.tv_nsec;
}

/// What changes when anybody writes the file or puts another in its place.
struct Identity
{
    dev_t device = 0;
    ino_t number = 0;
    off_t size = -1; ///< of a missing file
    qint64 written = 0;
    qint64 changed = 0;

    friend bool operator==(const Identity&, const Identity&) = default;
};

Identity identityOf(const QString& path)
{
    struct stat status = {};
    if (path.contains(QChar::Null) || ::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return {status.st_dev, status.st_ino, status.st_size, inNanoseconds(status.st_mtim),
            inNanoseconds(status.st_ctim)};
}

/// A second write within one step of the file system's clock would not show in the identity. Some count whole
/// seconds or two.
bool isSettled(const Identity& identity)
{
    constexpr qint64 fineStep = nanoseconds / 20;
    constexpr qint64 coarseStep = 2 * nanoseconds;
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const qint64 step = identity.changed % nanoseconds == 0 ? coarseStep : fineStep;
    return inNanoseconds(now) - identity.changed > step;
}

/// No value when there is a file that cannot be read whole; a missing one is an empty document.
std::optional<IniDocument> readDocument(const QString& path)
{
    try {
        return IniDocument(readFile(path, IniFile::largestFile));
    } catch (const RunTimeError& error) {
        if (error.number() == errors::fileNotFound || error.number() == errors::pathNotFound)
            return IniDocument();
        return std::nullopt;
    }
}

QString cut(QString value, int bufferSize)
{
    value.truncate(bufferSize - 1);
    if (!value.isEmpty() && value.back().isHighSurrogate())
        value.chop(1); // half a character
    return value;
}

} // namespace

struct IniFile::Image
{
    Identity identity;
    bool isSettled = false; ///< a file with this identity holds this document
    std::optional<IniDocument> document;
};

IniFile::IniFile(QString path) : m_path(std::move(path)) {}

std::shared_ptr<const IniFile::Image> IniFile::image() const
{
    const Identity before = identityOf(m_path);
    if (m_image && m_image->isSettled && m_image->identity == before)
        return m_image;
    const auto fresh = std::make_shared<Image>();
    fresh->identity = before;
    const bool settled = isSettled(before);
    fresh->document = readDocument(m_path);
    fresh->isSettled = settled && fresh->document && identityOf(m_path) == before;
    m_image = fresh;
    return m_image;
}

QString IniFile::read(const QString& section, const QString& key, const QString& fallback,
                      int bufferSize) const
{
    const std::shared_ptr<const Image> held = image();
    const std::optional<QString> value = held->document ? held->document->value(section, key) : std::nullopt;
    return cut(value.value_or(fallback), bufferSize);
}

QList<IniEntry> IniFile::readSection(const QString& section, int bufferSize) const
{
    const std::shared_ptr<const Image> held = image();
    if (!held->document)
        return {};
    QList<IniEntry> entries = held->document->entries(section).value_or(QList<IniEntry>());
    for (IniEntry& entry : entries)
        entry.value = cut(entry.value, bufferSize);
    return entries;
}

template <typename Change> bool IniFile::change(Change&& change)
{
    std::optional<IniDocument> document = readDocument(m_path);
    if (!document)
        return false;
    const QByteArray before = document->bytes();
    change(*document);
    const QByteArray after = document->bytes();
    if (after == before)
        return true;
    if (after.size() > largestFile)
        return false; // nobody would read it again
    m_image.reset();
    try {
        replaceFile(m_path, after);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

bool IniFile::write(const QString& section, const QString& key, const QString& value)
{
    return change([&](IniDocument& document) { document.setValue(section, key, value); });
}

bool IniFile::replaceSections(const QList<IniSection>& sections)
{
    return change([&](IniDocument& document) {
        for (const IniSection& section : sections)
            document.replaceSection(section);
    });
}

bool IniFile::deleteSection(const QString& section)
{
    return change([&](IniDocument& document) { document.removeSection(section); });
}

} // namespace varnhold
