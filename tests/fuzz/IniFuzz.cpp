// Editing a damaged settings file: what is written is read back, and all other lines stay as they were, in
// order.

#include "fuzz/FuzzTarget.h"
#include "platform/IniDocument.h"

#include <algorithm>
#include <iterator>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

QByteArrayList linesOf(QByteArray bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    if (bytes.isEmpty())
        return {};
    if (bytes.endsWith('\n'))
        bytes.chop(1);
    QByteArrayList lines = bytes.split('\n');
    for (QByteArray& line : lines) {
        while (line.endsWith('\r'))
            line.chop(1);
    }
    return lines;
}

/// One line of the key may have changed; all before and after it stand.
void requireOneChange(const QByteArrayList& old, const QByteArrayList& now, const QByteArray& input)
{
    const auto head = std::mismatch(old.begin(), old.end(), now.begin(), now.end()).first;
    const auto tail =
        std::mismatch(old.rbegin(), std::make_reverse_iterator(head), now.rbegin(), now.rend()).first;
    require(std::distance(head, tail.base()) <= 1, "other lines changed", input);
    require(head == tail.base() || head->toLower().contains('k'), "another key's line changed", input);
}

void checkValue(const QByteArray& input, const QString& value)
{
    IniDocument document(input);
    document.setValue(u"S"_s, u"k"_s, value + u"\r\n[T]\nk=loose"_s);
    const QByteArray once = document.bytes();
    require(document.value(u"s"_s, u"K"_s) == value, "reads back as something else", input);
    require(IniDocument(once).value(u"S"_s, u"k"_s) == value, "reads back otherwise from the file", input);
    document.setValue(u"S"_s, u"k"_s, value);
    require(document.bytes() == once, "writes differently", input);
    requireOneChange(linesOf(input), linesOf(once), input);
}

void checkSection(const QByteArray& input)
{
    const QList<IniEntry> entries = {{u"b"_s, u"2"_s}, {u"a"_s, u"\u4E2D"_s}, {u"c"_s, {}}};
    IniDocument document(input);
    document.replaceSection({u"S"_s, entries});
    const QByteArray once = document.bytes();
    require(IniDocument(once).entries(u"s"_s) == entries, "holds other entries", input);
    document.replaceSection({u"S"_s, entries});
    require(document.bytes() == once, "replaces differently", input);
    document.replaceSection({u"S"_s, {}});
    require(IniDocument(document.bytes()).entries(u"S"_s) == QList<IniEntry>(), "is not empty", input);
}

} // namespace

void check(const QByteArray& input)
{
    checkValue(input, u"v"_s);
    checkValue(input, u"=[x];\u00A7"_s);
    checkSection(input);
    IniDocument document(input);
    for (const QString& name : {u"S"_s, u"T"_s, QString()})
        document.removeSection(name);
    require(document.bytes().size() <= input.size(), "grows by removing", input);
}

const std::vector<QByteArray>& pieces()
{
    static const std::vector<QByteArray> all =
        piecesOf("[S]|[T]|[|]|k=|K = |=|;|\r\n|\n|\r| |\t|\"|'|abc|S|k|\xA7|\xFF|\x81|\r\n[S]\r\n|"
                 "\r\nk=old\r\n|\xEF\xBB\xBF|\xE4\xB8\xAD",
                 {QByteArray(1, '\0')});
    return all;
}

} // namespace varnhold::test
