#pragma once

#include <QByteArrayView>
#include <QStringView>

#include <string>

namespace varnhold {

/// Text without regard to case, as the database layer compares and sorts it: simple case folding of each
/// character, so that lengths in characters stay, ordered by code point. A character beyond ASCII never
/// becomes an ASCII one (the Kelvin sign is no k): what a file's own ASCII index says about ASCII text then
/// holds here too.

bool isAscii(QByteArrayView utf8);
/// Appends the folded text, as UTF-8. Bytes that are no UTF-8 become the replacement character.
void appendFolded(std::string& target, QByteArrayView utf8);
std::string folded(QByteArrayView utf8);
bool sameFolded(QStringView one, QStringView other);

/// One text that many are compared with.
class FoldedText
{
public:
    explicit FoldedText(QByteArrayView utf8);
    [[nodiscard]] bool matches(QByteArrayView utf8) const;
    [[nodiscard]] bool isAscii() const { return m_ascii; }

private:
    std::string m_folded;
    bool m_ascii;
    mutable std::string m_other;
};

} // namespace varnhold
