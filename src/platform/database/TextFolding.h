#pragma once

#include <QByteArrayView>

#include <string>

namespace varnhold {

/// Text without regard to case, as the database layer compares and sorts it: simple case folding of each
/// character, so that lengths in characters stay, ordered by code point. A character beyond ASCII never
/// becomes an ASCII one (the Kelvin sign is no k): what a file's own ASCII index says about ASCII text then
/// holds here too.

/// Whether case plays no part in the text beyond its ASCII letters, as in ids and in most scripts of Asia. A
/// file's own index, which knows the case of ASCII alone, then finds all that is the same text.
bool hasAsciiCaseOnly(QByteArrayView utf8);
/// Appends the folded text, as UTF-8. Bytes that are no UTF-8 become the replacement character.
void appendFolded(std::string& target, QByteArrayView utf8);
std::string folded(QByteArrayView utf8);

/// One text that many are compared with.
class FoldedText
{
public:
    explicit FoldedText(QByteArrayView utf8);
    [[nodiscard]] bool matches(QByteArrayView utf8) const;
    [[nodiscard]] bool hasAsciiCaseOnly() const { return m_asciiCaseOnly; }

private:
    std::string m_folded;
    bool m_asciiCaseOnly;
    mutable std::string m_other;
};

} // namespace varnhold
