#include "CoverWorld.h"

#include "covers/CoverServersPage.h"

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class CoverServersTest : public CoverWorld, public CoverServersView
{
protected:
    void write(const QByteArray& names, const QByteArray& urls)
    {
        root.write(u"Settings.ini"_s,
                   "[Settings]\r\nExit=1\r\n[ServerName]\r\n" + names + "[ServerUrl]\r\n" + urls);
    }
    [[nodiscard]] QString rows() const
    {
        QStringList all;
        for (const CoverServer& row : servers.rows())
            all.append(row.name + u'=' + row.url);
        return all.join(u' ');
    }
    void enter(const QString& name, const QString& url, int button)
    {
        typed = {name, url};
        page.cmd_Fav_Click(button);
    }

    [[nodiscard]] int currentRow() const override { return current; }
    [[nodiscard]] QList<int> selectedRows() const override { return chosen; }
    void showRows(const QList<CoverServer>& rows, int row) override
    {
        EXPECT_EQ(rows, servers.rows());
        current = row;
    }
    [[nodiscard]] CoverServer entry() const override { return typed; }
    void setEntry(const CoverServer& entry) override { typed = entry; }
    void openEntry(bool open) override { isOpen = open; }
    [[nodiscard]] bool isEntryOpen() const override { return isOpen; }

    int current = -1;
    QList<int> chosen;
    CoverServer typed;
    bool isOpen = false;
    int saves = 0;
    CoverServersPage page{servers, boxes, *this, u"Varnhold"_s, [this] { ++saves; }};
};

} // namespace

TEST_F(CoverServersTest, ReadsUpToAnEmptyNameAndKeepsTheNumbersInTheMenu)
{
    const struct
    {
        QByteArray names;
        QByteArray urls;
        QString rows;
        QList<int> menu;
    } cases[] = {
        {"", "", u""_s, {}},
        {"1=A\r\n2=B\r\n", "1=a/\r\n2=b/\r\n", u"A=a/ B=b/"_s, {1, 2}},
        {"2=B\r\n1=A\r\n4=D\r\n", "1=a/\r\n", u"A=a/ B="_s, {1, 2}}, // 3 is missing
        {"1=EMPTY\r\n2=empty\r\n3=\r\n4=D\r\n", "2=b/\r\n4=d/\r\n", u"empty=b/"_s, {2}},
        {"1=A\r\n2=A\r\n3=A\r\n", "1=x/\r\n2=x/\r\n3=y/\r\n", u"A=x/ A=y/"_s, {1, 2, 3}}, // equal rows
        {"1=A B\r\n2=A\r\n", "1=c/\r\n2=B c/\r\n", u"A B=c/"_s, {1, 2}},                  // equal keys
        {"1=A\r\n[ServerName]\r\n2=B\r\n", "1=a/\r\n", u"A=a/"_s, {1}}, // a section twice: the first counts
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.names.constData());
        write(one.names, one.urls);
        servers.readCoverServers();
        servers.buildCoverServerMenu();
        EXPECT_EQ(rows(), one.rows);
        EXPECT_EQ(servers.menu().keys(), one.menu);
    }
    EXPECT_EQ(coverUrl(u"http://h/c/"_s, u"a#b?c d%/ü"_s), u"http://h/c/a%23b%3Fc%20d%25%2F%C3%BC.jpg"_s);
}

TEST_F(CoverServersTest, EditsTheListAloneUntilTheSave)
{
    page.shown();
    page.cmd_Fav_Click(0);
    EXPECT_TRUE(isOpen);
    boxes.expect(u"Please fill in a Title"_s, u"Title Error"_s);
    enter(u"  "_s, u"x/"_s, 1);
    boxes.expect(u"Please fill in a server url"_s, u"Url Error"_s);
    enter(u"A"_s, u" "_s, 1);
    boxes.expect(u"A title or url may have 254 characters at most."_s, u"Varnhold"_s);
    enter(u"A"_s, QString(255, u'x'), 1);
    enter(u" A "_s, u"a/"_s, 1);
    enter(u"B"_s, u"b/"_s, 1);
    enter(u"C"_s, u"c/"_s, 1);
    enter(u"A"_s, u"a/"_s, 1); // there already
    EXPECT_EQ(rows(), u"A=a/ B=b/ C=c/"_s);

    current = 1;
    enter(u"BB"_s, u""_s, 2);
    enter(u"A"_s, u"a/"_s, 2);
    EXPECT_EQ(rows(), u"A=a/ B=b/ C=c/"_s);
    enter(u"BB"_s, u"b/"_s, 2);
    page.btn_fav_Change_Click(0);
    EXPECT_EQ(current, 0);
    page.btn_fav_Change_Click(0); // at the end
    EXPECT_EQ(rows(), u"BB=b/ A=a/ C=c/"_s);
    page.btn_fav_Change_Click(1);
    EXPECT_EQ(rows(), u"A=a/ BB=b/ C=c/"_s);

    page.cmd_Fav_Click(0);
    EXPECT_FALSE(isOpen);
    EXPECT_EQ(typed, CoverServer());
    page.ListView1_DblClick(2);
    EXPECT_TRUE(isOpen);
    EXPECT_EQ(typed, (CoverServer{u"C"_s, u"c/"_s}));

    EXPECT_EQ(saves, 0);
    EXPECT_TRUE(file.readSection(u"ServerName"_s).isEmpty());
    page.cmd_Fav_Click(5);
    EXPECT_EQ(saves, 1);
    EXPECT_EQ(servers.menu().value(2), (CoverServer{u"BB"_s, u"b/"_s}));

    boxes.expect(u"Delete\r\nBB\r\nYes or No!"_s, u"Varnhold"_s, BoxAnswer::No);
    page.cmd_Fav_Click(3);
    boxes.expect(u"Delete\r\nBB\r\nYes or No!"_s, u"Varnhold"_s, BoxAnswer::Yes);
    page.cmd_Fav_Click(3);
    EXPECT_EQ(rows(), u"A=a/ C=c/"_s);
    page.cmd_Fav_Click(4); // none is selected
    chosen = {0, 1};
    boxes.expect(u"Remove selected Servers/s?\r\nA\r\nC\r\nYes or No!"_s, u"Varnhold"_s, BoxAnswer::Yes);
    page.cmd_Fav_Click(4);
    EXPECT_EQ(rows(), u""_s);
    page.cmd_Fav_Click(3); // none is current
    page.cmd_Fav_Click(5);
    EXPECT_EQ(servers.menu().size(), 3) << "an empty list is not saved";
    EXPECT_EQ(file.INI_Read(u"ServerName"_s, u"2"_s, {}), u"BB"_s);
}

TEST_F(CoverServersTest, AFileOfAThousandIsReplacedInOneStepAndKeptWhenThatFails)
{
    QByteArray names;
    QByteArray urls;
    for (int i = 1; i <= 1000; ++i) {
        names += QByteArray::number(i) + "=N" + QByteArray::number(i) + "\r\n";
        urls += QByteArray::number(i) + "=http://h/" + QByteArray::number(i) + "/\r\n";
    }
    write(names, urls);
    // A load that ended early has not read them; a save from the page must not wipe them.
    page.shown();
    ASSERT_EQ(servers.rows().size(), 1000);
    current = 0;
    page.btn_fav_Change_Click(1);
    page.cmd_Fav_Click(5);
    EXPECT_EQ(file.INI_Read(u"ServerName"_s, u"1"_s, {}), u"N2"_s);
    EXPECT_EQ(file.INI_Read(u"ServerUrl"_s, u"1000"_s, {}), u"http://h/1000/"_s);
    EXPECT_EQ(file.INI_Read(u"Settings"_s, u"Exit"_s, {}), u"1"_s);
    const QByteArray before = root.read(u"Settings.ini"_s);
    page.btn_fav_Change_Click(1);
    page.shown();
    EXPECT_EQ(servers.rows().at(1).name, u"N3"_s) << "rows that wait for a save stay";

    QFile::setPermissions(root.paths().settingsIni(), QFile::ReadOwner);
    page.cmd_Fav_Click(5);
    EXPECT_EQ(root.read(u"Settings.ini"_s), before);
}

} // namespace varnhold::test
