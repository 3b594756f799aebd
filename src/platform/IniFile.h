#pragma once

#include <QString>
#include <QStringList>

namespace varnhold {

/// A settings file of plain sections and key=value lines. Sections and keys are found without regard to
/// case, the first of two equal ones wins; blanks round key and value and one pair of quotes round a value
/// are dropped on reading. A write keeps every other line as it was, comments and order included, and
/// replaces the file in one step. Text is Windows-1252, or UTF-8 where the file carries a byte order mark;
/// a value that the code page cannot hold turns the file into marked UTF-8 at that write.
///
/// There is no cache: each call reads the file, so edits from outside count. No call reports a failure:
/// reading gives the default, and a write that fails leaves the file as it was.
class IniFile
{
public:
    explicit IniFile(QString path);

    [[nodiscard]] const QString& path() const { return m_path; }

    /// The value cut to `bufferSize` - 1 characters; the default for a key that is missing.
    [[nodiscard]] QString read(const QString& section, const QString& key, const QString& fallback,
                               int bufferSize) const;
    void write(const QString& section, const QString& key, const QString& value);
    void deleteSection(const QString& section);

private:
    QString m_path;
};

} // namespace varnhold
