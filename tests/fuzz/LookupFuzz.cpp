// From the bytes of a damaged update document to the cut values: the tree text judges like the XML reader it
// stands on, and the one walk of the cut gives what cutting in plain steps gives.

#include "fuzz/FuzzTarget.h"
#include "lookup/AttributeCut.h"
#include "lookup/UpdateDocument.h"
#include "platform/XmlTreeText.h"

#include <QXmlStreamReader>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

bool isXml(const QByteArray& input)
{
    QXmlStreamReader reader(input);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

void checkCut(QString text, const QByteArray& input)
{
    static const QString names[] = {u"<package version"_s, u"ps3_system_ver"_s, u"size"_s, u"sha1sum"_s,
                                    u"url"_s};
    QString plain = text;
    plain.remove(u"  <?xml version="_s).remove(u"\r\n"_s);
    const AttributeCut cut(text);
    require(text == plain, "rewritten otherwise", input);
    require(cut.titleStart() == plain.indexOf(u"<TITLE>"_s), "another title", input);
    for (int attribute = 0; attribute < static_cast<int>(PackageAttribute::Count); ++attribute) {
        const auto& values = cut.values(static_cast<PackageAttribute>(attribute));
        const QList<QStringView> expected = QStringView(plain).split(names[attribute] + u"=\""_s);
        require(std::ranges::equal(values, expected, {}, {}, Attribute_Value), "cut otherwise", input);
    }
}

} // namespace

void check(const QByteArray& input)
{
    const std::optional<QString> tree = xmlTreeText(input);
    require(!tree || isXml(input), "shows what is no XML", input);
    const bool isPlain = !input.contains("<!DOCTYPE") && !input.contains('\0') && input.count('=') <= 256;
    require(tree || !isPlain || !isXml(input), "refuses XML", input);
    if (tree)
        checkCut(*tree, input);
    checkCut(QString::fromUtf8(input), input);
}

const std::vector<QByteArray>& pieces()
{
    static const std::vector<QByteArray> all =
        piecesOf("<package version=\"|ps3_system_ver=\"|size=\"|sha1sum=\"|url=\"|=\"|\"|'|"
                 "  <?xml version=|  <?xml ver\r\nsion=|\r|\r\n|\n|<TITLE>|</TITLE>|<package|</package>|"
                 "/>|<a>|</a>| a='b'| xmlns:n='u'|<!--|-->|<![CDATA[|]]>|<?p |?>|&amp;|&#60;|&e;|%p;|"
                 "<!DOCTYPE a [|]>|<!ENTITY e '<a b=\"\"/>'>|<!ENTITY % p '<!ATTLIST a b CDATA \"x\">'>|"
                 "<!ATTLIST a b CDATA 'x' c CDATA #IMPLIED>|<?xml version='1.0' encoding='UTF-16'?>|"
                 "<?xml version='1.0' encoding='windows-1252'?>|\xff\xfe|\xef\xbb\xbf|\xc3\xa9",
                 {QByteArray(1, '\0'), QByteArray(" a=''").repeated(300), QByteArray("<a>").repeated(100)});
    return all;
}

} // namespace varnhold::test
