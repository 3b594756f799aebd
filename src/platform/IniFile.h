#pragma once

#include "platform/IniDocument.h"

#include <QString>

#include <memory>

namespace varnhold {

/// A settings file of plain sections and key=value lines. Sections and keys are found without regard to
/// case, the first of two equal ones wins; blanks round key and value and one pair of quotes round a value
/// are dropped on reading. A write keeps every other line as it was, comments and order included, and
/// replaces the file in one step; a value ends at its first line end, as it will read back. Text is
/// Windows-1252, or UTF-8 where the file carries a byte order mark; a value that the code page cannot hold
/// turns the file into marked UTF-8 at that write.
///
/// Edits from outside count at once: what was read is kept only as long as the file is the same one,
/// unchanged, and a write always begins with what the file holds now. No call throws: reading gives the
/// default, and a write that fails leaves the file as it was.
class IniFile
{
public:
    static constexpr qint64 largestFile = 4 * 1024 * 1024; ///< bytes; one above is neither read nor written

    explicit IniFile(QString path);

    [[nodiscard]] const QString& path() const { return m_path; }

    /// The value cut to `bufferSize` - 1 characters; the default for a key that is missing.
    [[nodiscard]] QString read(const QString& section, const QString& key, const QString& fallback,
                               int bufferSize) const;
    /// All entries of a section in the file's order, each value cut as `read` does; of equal keys the first
    /// alone. Empty where there is no such section.
    [[nodiscard]] QList<IniEntry> readSection(const QString& section, int bufferSize) const;

    /// All three tell whether the file now holds what was asked.
    bool write(const QString& section, const QString& key, const QString& value);
    /// In one write: each of the sections then holds its entries and no others. One that is missing is added,
    /// unless it is empty.
    bool replaceSections(const QList<IniSection>& sections);
    bool deleteSection(const QString& section);

private:
    struct Image;

    [[nodiscard]] std::shared_ptr<const Image> image() const;
    template <typename Change> bool change(Change&& change);

    QString m_path;
    mutable std::shared_ptr<const Image> m_image;
};

} // namespace varnhold
