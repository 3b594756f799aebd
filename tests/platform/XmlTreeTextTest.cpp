#include "platform/XmlTreeText.h"

#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

const QString made = u"  <?xml version=\"1.0\"?>\r\n"_s;

} // namespace

TEST(XmlTreeText, ShowsADocumentAsATree)
{
    const struct
    {
        const char* name;
        QByteArray document;
        QString text;
    } cases[] = {
        {"declaration as it stands", "<?xml version='1.0' encoding='UTF-8' standalone='yes'?><a/>",
         u"  <?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n<a />\r\n"_s},
        {"attributes in their order, single quotes become double", "<a z='1' b=\"2\" a='3'/>",
         made + u"<a z=\"1\" b=\"2\" a=\"3\" />\r\n"_s},
        {"each element on its line, blanks between them gone", "<a>\n\n  <b>\t<c/></b><d></d>\n</a>",
         made + u"<a>\r\n  <b>\r\n    <c />\r\n  </b>\r\n  <d />\r\n</a>\r\n"_s},
        {"text beside its tags, decoded", "<a>it's &amp; &lt;x&gt; &#8482; <![CDATA[<y>]]></a>",
         made + u"<a>it's & <x> ™ <y></a>\r\n"_s},
        {"line feeds become CR LF", "<a>one\ntwo</a>", made + u"<a>one\r\ntwo</a>\r\n"_s},
        {"text among elements", "<a>one<b/>two</a>",
         made + u"<a>\r\n  one\r\n  <b />\r\n  two\r\n</a>\r\n"_s},
        {"name spaces stay as they are written", "<n:a xmlns:n='u' n:b='1'/>",
         made + u"<n:a xmlns:n=\"u\" n:b=\"1\" />\r\n"_s},
        {"asides", "<!DOCTYPE a><!-- c --><?p d?><a/>",
         made + u"<!DOCTYPE a>\r\n<!-- c -->\r\n<?p d?>\r\n<a />\r\n"_s},
        {"a single-byte encoding", "<?xml version='1.0' encoding='windows-1252'?><a>\x99</a>",
         u"  <?xml version=\"1.0\" encoding=\"windows-1252\"?>\r\n<a>™</a>\r\n"_s},
        {"own entities, none from outside",
         "<!DOCTYPE a [<!ENTITY e 'in'><!ENTITY f SYSTEM '/etc/hostname'>]><a>&e;&f;</a>",
         made + u"<!DOCTYPE a>\r\n<a>in</a>\r\n"_s},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        EXPECT_EQ(xmlTreeText(one.document), one.text);
    }
}

TEST(XmlTreeText, RefusesWhatIsNotWellFormed)
{
    QByteArray bomb = "<!DOCTYPE a [<!ENTITY e0 'x'>";
    for (int i = 1; i < 40; ++i) {
        const QByteArray before = "&e" + QByteArray::number(i - 1) + ';';
        bomb += "<!ENTITY e" + QByteArray::number(i) + " '" + before + before + "'>";
    }
    const QByteArray documents[] = {"",
                                    "hello",
                                    "<html><br></html>",
                                    "<a>",
                                    "<a/><b/>",
                                    "<a b=1/>",
                                    "<a>&nope;</a>",
                                    QByteArray("<a>\0</a>", 8),
                                    "<a>\xff\xfe</a>",
                                    bomb + "]><a>&e39;</a>"};
    for (const QByteArray& one : documents)
        EXPECT_EQ(xmlTreeText(one), std::nullopt) << one.left(40).constData();
}

TEST(XmlTreeText, BoundsWhatATagAndADocumentTypeMakeTheReaderCompare)
{
    const auto repeated = [](const char* before, int count, const char* after = "=''") {
        QByteArray text;
        for (int i = 0; i < count; ++i)
            text += before + QByteArray::number(i) + after;
        return text;
    };
    const auto withType = [](const QByteArray& subset, const QByteArray& content = "") {
        return QByteArray("<!DOCTYPE a [" + subset + "]><a>" + content + "</a>");
    };
    const auto wide = [](QByteArray text, const QByteArray& declaration) {
        text.prepend(declaration);
        QByteArray out;
        for (const char c : text)
            out.append(c).append('\0');
        return out;
    };
    const QByteArray parameter = "<!ENTITY % p '<!ATTLIST a b CDATA \"\">'>";
    const QByteArray large(2'000'000, '=');
    const struct
    {
        const char* name;
        QByteArray document;
        bool isShown;
    } cases[] = {
        {"a tag", "<a" + repeated(" b", 256) + "/>", true},
        {"a fuller tag", "<a><b/><c" + repeated(" b", 257) + "/></a>", false},
        {"name spaces", "<a" + repeated(" xmlns:b", 257) + "/>", false},
        {"in wide characters",
         wide("<a" + repeated(" b", 257) + "/>", "<?xml version='1.0' encoding='UTF-16LE'?>"), false},
        {"defaults", withType("<!ATTLIST a" + repeated(" b", 64, " CDATA #FIXED ''") + ">"), true},
        {"more defaults", withType(repeated("<!ATTLIST a b", 257, " CDATA #IMPLIED>")), false},
        {"brought by a parameter", withType(parameter + "%p;"), true},
        {"brought often", withType(parameter + QByteArray("%p;").repeated(257)), false},
        {"a tag in an entity", withType("<!ENTITY e '<a" + repeated(" b", 257, "=\"\"") + "/>'>", "&e;"),
         false},
        {"references", withType("<!ENTITY e 'x'>", QByteArray("&e;").repeated(4096)), true},
        {"more references", withType("<!ENTITY e ''>", "<b c='" + QByteArray("&e;").repeated(4097) + "'/>"),
         false},
        {"what is no reference", "<a>" + QByteArray("&amp;&#65;").repeated(5000) + "</a>", true},
        {"signs in text",
         "<a><!--" + large + "--><![CDATA[" + large + "]]>" + large + "<?p " + large + "?></a>", true},
    };
    for (const auto& one : cases)
        EXPECT_EQ(xmlTreeText(one.document).has_value(), one.isShown) << one.name;
}

TEST(XmlTreeText, StaysBoundedWhereTheTreeIsDeep)
{
    constexpr int depth = 100000;
    const QByteArray deep = QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
    const auto text = xmlTreeText(deep);
    ASSERT_TRUE(text.has_value());
    EXPECT_LT(text->size(), depth * 300);
    // Indents alone make a small document large.
    const QByteArray wide = QByteArray("<a>").repeated(64) + QByteArray("<b/>").repeated(800'000) +
                            QByteArray("</a>").repeated(64);
    EXPECT_EQ(xmlTreeText(wide), std::nullopt);
}

} // namespace varnhold::test
