#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace varnhold {

struct IniEntry
{
    QString key;
    QString value;

    friend bool operator==(const IniEntry&, const IniEntry&) = default;
};

struct IniSection
{
    QString name;
    QList<IniEntry> entries;
};

/// The bytes of a settings file as sections and key=value lines; IniFile says what holds for them. An edit
/// changes the lines that it is about and no others, whatever these are. What is looked for is found by an
/// index that is made once, part by part as it is asked for.
class IniDocument
{
public:
    IniDocument() = default;
    explicit IniDocument(QByteArray bytes);

    [[nodiscard]] QByteArray bytes() const;

    /// Without the blanks and the pair of quotes round it.
    [[nodiscard]] std::optional<QString> value(const QString& section, const QString& key) const;
    /// In the file's order; of equal keys the first alone. No value where there is no such section.
    [[nodiscard]] std::optional<QList<IniEntry>> entries(const QString& section) const;

    /// Section and key are added where they are missing. None of the three holds a line end: it ends there.
    void setValue(const QString& section, const QString& key, const QString& value);
    /// Makes the section hold these entries and no others. Its lines that are no entries stay.
    void replaceSection(const IniSection& section);
    void removeSection(const QString& section);

private:
    /// Positions in the bytes.
    struct Span
    {
        qsizetype head = 0; ///< of the head's line
        qsizetype body = 0; ///< of the line after it
        qsizetype end = 0;
    };
    struct Line
    {
        qsizetype start = 0;
        qsizetype end = 0; ///< behind its line end
    };
    using Keys = QHash<QString, qsizetype>; ///< key, its case folded, to the start of its line

    [[nodiscard]] Line lineAt(qsizetype start) const;
    [[nodiscard]] QByteArrayView text(const Line& line) const;
    [[nodiscard]] QString decoded(QByteArrayView bytes) const;
    [[nodiscard]] QByteArray lineEnd() const;
    [[nodiscard]] const Span* find(const QString& section) const;
    [[nodiscard]] const Keys& keysOf(const QString& section) const;
    [[nodiscard]] qsizetype endOfContent(const Span& span) const;
    void splice(qsizetype start, qsizetype end, const QStringList& lines);
    void becomeUtf8(qsizetype& start, qsizetype& end);

    QByteArray m_body;
    bool m_utf8 = false;
    mutable bool m_isIndexed = false;
    mutable QHash<QString, Span> m_sections; ///< by name, its case folded
    mutable QHash<QString, Keys> m_keys;     ///< of the sections that were asked for
};

} // namespace varnhold
