#include "gamedb/EntryEditor.h"

#include "MaintenanceWorld.h"
#include "gamedb/EditorPanels.h"
#include "gamedb/EntryEditorView.h"
#include "platform/richtext/RtfReader.h"
#include "platform/richtext/RtfWriter.h"
#include "state/Sounds.h"
#include "support/FakeFileDialogs.h"
#include "support/FakeSoundPlayer.h"

#include <QDir>
#include <QFile>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

/// Picture bytes of the tests begin with "BM" where they are a picture.
struct FakeEditorWindow : EntryEditorView
{
    void showBusy(bool busy) override { isBusy = busy; }
    [[nodiscard]] bool isShown() const override { return shown; }
    void open() override { shown = true; }
    void close() override { shown = false; }
    void setCaption(const QString& text) override { caption = text; }
    void offer(EntrySave which, const QString& toolTip) override
    {
        button = (which == EntrySave::New ? u"CmdAdd "_s : u"cmdUpdate "_s) + toolTip;
    }
    void setUnchanged() override {}
    [[nodiscard]] QString gameId() const override { return id; }
    void setGameId(const QString& text) override { id = text; }
    void focusGameId() override { focus = u"id"_s; }
    [[nodiscard]] QString gameName() const override { return name; }
    void setGameName(const QString& text) override { name = text; }
    [[nodiscard]] RichText notes() const override { return readRtf(rtf.toUtf8()); }
    void fillNotes(const QString& text) override { rtf = text; }
    void replaceNotes(const RichText& text) override { rtf = QString::fromLatin1(writeRtf(text)); }
    void blackenNotes() override { ++blackened; }
    void unlockNotes() override {}
    void focusNotes() override { focus = u"notes"_s; }
    void readFont() override {}
    [[nodiscard]] QString imageLabel() const override { return image; }
    void setImageLabel(const QString& text) override { image = text; }
    bool showPicture(const QByteArray& bytes) override
    {
        if (!bytes.startsWith("BM"))
            return false;
        picture = bytes;
        return true;
    }
    void showBlankPicture() override { picture = "BMblank"; }
    void showPngFile(const QString& path) override
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly) && file.peek(4) == "\x89PNG")
            picture = "BMpng";
    }
    [[nodiscard]] QByteArray pictureAsBitmap() const override { return picture; }
    void setFileLabel(const QString& title, const QString& path) override { loaded = title + u'|' + path; }
    void setSaveLabel(const QString& title, const QString& path) override { saved = title + u'|' + path; }

    bool isBusy = false;
    bool shown = false;
    QString caption, button, id, name, focus, rtf, image, loaded, saved;
    QByteArray picture;
    int blackened = 0;
};

struct FakeMainWindow : EntryHost
{
    void showBusy(bool) override {}
    [[nodiscard]] QString gameIdText() const override { return id; }
    [[nodiscard]] QString info() const override { return title; }
    [[nodiscard]] QString notes() const override { return rtf; }
    [[nodiscard]] QByteArray pictureAsBitmap() const override { return picture; }
    [[nodiscard]] bool showsLoadedEntry() const override { return isLoaded; }
    void loadEntry() override { load(); }
    void clearPreview() override { id = title = rtf = QString(); }
    [[nodiscard]] int gameCount() const override { return static_cast<int>(games.size()); }
    [[nodiscard]] int selectedRow() const override { return row; }
    [[nodiscard]] QString selectedGameText() const override { return games.value(row); }
    void addGame(const QString& text) override { games << text; }
    void addTitle(const QString& text) override { titles << text; }
    void removeRow(int which) override
    {
        games.removeAt(which);
        if (which < titles.size())
            titles.removeAt(which);
    }
    void deselect() override { row = -1; }

    QString id, title, rtf;
    QByteArray picture = "BMmain";
    bool isLoaded = true;
    std::function<void()> load = [] {};
    QStringList games, titles;
    int row = -1;
};

} // namespace

class EntryEditorTest : public MaintenanceWorld
{
protected:
    EntryEditorTest()
    {
        settings.setOrder(Order::DBTable, 1);
        database.addGames(u"PS3Games"_s, {{u"BLUS30443"_s, u"Ashgrove"_s, u"{\\rtf1 n}"_s, "old"},
                                          {u"BCES00509"_s, u"Other"_s}});
        main.games = QStringList{u"BLUS30443"_s, u"BCES00509"_s};
        main.titles = QStringList{u"Ashgrove"_s, u"Other"_s};
    }
    ~EntryEditorTest() override { EXPECT_FALSE(window.isBusy); }

    /// The main window shows the loaded entry of that id.
    void choose(const QString& id, const QString& title)
    {
        main.id = shared.loadedKey = id;
        main.title = title;
        main.rtf = u"{\\rtf1 n}"_s;
    }
    [[nodiscard]] QStringList rows(const QString& table = u"PS3Games"_s) const
    {
        return database.column(
            u"SELECT coalesce(GameID, '-') || '|' || coalesce(GameName, '-') || '|' || CASE WHEN GameNotes "
            "IS NULL THEN '-' ELSE length(GameNotes) > 0 END || '|' || coalesce(hex(GameImage), '-') FROM "_s +
            table + u" ORDER BY GameID"_s);
    }

    FakeSoundPlayer player;
    Sounds sounds{settings, player, state};
    FakeFileDialogs dialogs;
    FakeEditorWindow window;
    FakeMainWindow main;
    Paths paths = root.paths();
    EntryEditor editor{{shared, settings, paths, boxes, dialogs, sounds, window, main, u"Varnhold"_s}};
};

TEST_F(EntryEditorTest, OpensInFourWays)
{
    editor.openToAdd();
    editor.openToEdit();
    editor.mnuLBAdd_Click();
    EXPECT_FALSE(window.shown) << "without an id";

    choose(u"BLUS30443"_s, u"Ash's"_s);
    shared.PicBytes = "kept";
    editor.mnuLBAdd_Click();
    EXPECT_EQ(window.caption, u"Adding Database Entry - BLUS30443 - Ash's"_s);
    EXPECT_TRUE(window.shown && window.button.startsWith(u"CmdAdd"_s) && window.focus == u"notes");
    EXPECT_EQ(window.rtf, main.rtf);
    EXPECT_EQ(shared.PicBytes, "kept");
    EXPECT_TRUE(window.picture.isEmpty());

    editor.openToEdit();
    EXPECT_EQ(window.caption, u"Editing Database Entry - BLUS30443 - Ash's"_s);
    EXPECT_EQ(window.button, u"cmdUpdate Save over BLUS30443"_s);
    EXPECT_EQ(shared.PicBytes, QByteArray("BMmain\0", 7));
    EXPECT_EQ(window.picture, "BMmain");
    EXPECT_EQ(QDir(root.path(u""_s)).entryList({u"temp.bmp"_s}), QStringList());

    editor.CmdNewRecord_Click();
    EXPECT_EQ(window.caption, u"New Database Entry"_s);
    EXPECT_TRUE(window.id.isEmpty() && window.name.isEmpty() && window.focus == u"id");
    EXPECT_TRUE(shared.PicBytes.isEmpty());

    shared.PicBytes = "abandoned";
    window.image = u"file"_s;
    editor.leave();
    EXPECT_TRUE(shared.PicBytes.isEmpty() && window.image.isEmpty());
}

TEST_F(EntryEditorTest, LoadsAnEntryAgainWhoseNotesOrPictureWereTaken)
{
    choose(u"BLUS30443"_s, u"Ashgrove"_s);
    main.isLoaded = false;
    main.rtf.clear();
    editor.openToEdit();
    EXPECT_FALSE(window.shown) << "the load failed, and told so";
    main.load = [this] {
        main.isLoaded = true;
        main.rtf = u"{\\rtf1 again}"_s;
    };
    editor.openToEdit();
    EXPECT_EQ(window.rtf, u"{\\rtf1 again}"_s);

    // A picture that cannot go through its file opens nothing.
    window.shown = false;
    root.makeFolder(u"temp.bmp"_s);
    editor.openToEdit();
    EXPECT_EQ(boxes.taken(), QStringList{AnsweringBoxes::report(errors::fileExists)});
    EXPECT_FALSE(window.shown);
    EXPECT_TRUE(shared.PicBytes.isEmpty());
}

TEST_F(EntryEditorTest, AddsWhatIsThereToTheTableThatIsAnswered)
{
    struct Case
    {
        int table;
        QList<BoxAnswer> answers;
        QString asked;
        QStringList games;
        QStringList personal;
    };
    const QStringList before = rows();
    const QStringList after = before + QStringList{u"NPEB1|New|1|4200"_s};
    const Case cases[] = {
        {1, {no, no}, u"PS3Games PS3Personal"_s, before, {}},
        {2, {no, no}, u"PS3Personal PS3Games"_s, before, {}},
        {1, {yes}, u"PS3Games"_s, after, {}},
        {2, {yes}, u"PS3Personal"_s, before, {u"NPEB1|New|1|4200"_s}},
        {2, {no, yes}, u"PS3Personal PS3Games"_s, after, {}},
        {1, {no, yes}, u"PS3Games PS3Personal"_s, after, {}}, // meant
    };
    for (const Case& each : cases) {
        settings.setOrder(Order::DBTable, each.table);
        window.shown = true;
        window.id = u"NPEB1"_s;
        window.name = u"New"_s;
        window.rtf = u"{\\rtf1 text}"_s;
        window.image = u"b.gif"_s;
        shared.PicBytes = QByteArray("B\0", 2);
        boxes.answers = each.answers;
        editor.CmdAdd_Click();
        QStringList asked;
        for (const QString& box : boxes.taken()) {
            if (box.startsWith(u"New Entry|Add NEW DB Entry to "_s))
                asked << box.mid(30).chopped(1);
            else
                EXPECT_EQ(box, u"Add New Record|Database has been updated."_s);
        }
        EXPECT_EQ(asked.join(u' '), each.asked);
        EXPECT_EQ(rows(), each.games);
        EXPECT_EQ(rows(u"PS3Personal"_s), each.personal);
        const bool isSaved = each.answers.last() == yes;
        EXPECT_EQ(window.shown, !isSaved);
        EXPECT_EQ(window.id.isEmpty(), isSaved);
        EXPECT_EQ(main.games.size(), isSaved ? 3 : 2);
        EXPECT_EQ(main.titles.size(), isSaved ? 3 : 2);
        database.execute(u"DELETE FROM PS3Games WHERE GameID = 'NPEB1'; DELETE FROM PS3Personal"_s);
        main.games.resize(2);
        main.titles.resize(2);
    }
}

TEST_F(EntryEditorTest, KeepsWhatWasTypedWhereAnAddIsRefused)
{
    window.shown = true;
    window.id = u"bcES00509"_s;
    boxes.answers = {yes, yes};
    editor.CmdAdd_Click();
    EXPECT_EQ(boxes.taken().last(), AnsweringBoxes::report(errors::database::duplicate));
    EXPECT_TRUE(window.shown);
    EXPECT_EQ(window.id, u"bcES00509"_s);
    EXPECT_EQ(main.games.size(), 3) << "a phantom, which is meant";
    EXPECT_EQ(main.titles.size(), 2);
    // Its connection is its own and a new one each time: no 3705.
    window.id = u"it's"_s;
    editor.CmdAdd_Click();
    EXPECT_EQ(boxes.taken().last(), u"Add New Record|Database has been updated."_s);
    EXPECT_TRUE(rows().contains(u"it's|-|-|"_s));
}

TEST_F(EntryEditorTest, SavesOverTheRowThatWasLoaded)
{
    choose(u"BLUS30443"_s, u"Ashgrove"_s);
    editor.openToEdit();
    // Another row is chosen and transferred meanwhile; the editor is not modal.
    shared.loadedKey = shared.DBKey = u"BCES00509"_s;
    window.id = u"RENAMED"_s;
    window.name.clear();
    window.rtf = u"{\\rtf1 {\\pict only}}"_s;
    editor.cmdUpdate_Click();
    EXPECT_EQ(boxes.taken(), QStringList{u"Varnhold|Database has been updated."_s});
    EXPECT_EQ(rows(), (QStringList{u"BCES00509|Other|-|"_s, u"RENAMED|Ashgrove|1|424D6D61696E00"_s}));
    EXPECT_FALSE(window.shown);
    EXPECT_TRUE(main.id.isEmpty());

    choose(u"BCES00509"_s, u"Other"_s);
    editor.openToEdit();
    window.rtf = u"{\\rtf1 }"_s;
    editor.CmdBrowse_RightClick();
    editor.cmdUpdate_Click();
    EXPECT_EQ(boxes.taken().size(), 1);
    EXPECT_EQ(rows().first(), u"BCES00509|Other|0|"_s);

    const std::pair<QString, int> refused[] = {{u"gone"_s, errors::database::noCurrentRecord},
                                               {u"a'b"_s, errors::database::badSyntax}};
    for (const auto& [row, number] : refused) {
        choose(row, u"t"_s);
        editor.openToEdit();
        editor.cmdUpdate_Click();
        EXPECT_EQ(boxes.taken(), QStringList{AnsweringBoxes::report(number)});
        EXPECT_EQ(window.id, row);
        EXPECT_TRUE(window.shown);
    }
}

TEST_F(EntryEditorTest, TakesPicturesByTheEndOfTheirNames)
{
    struct Case
    {
        QString name;
        QByteArray bytes;
        QString image; ///< lblImage
        QByteArray stored;
        bool isReported;
    };
    const QByteArray png = "\x89PNG\r\n\x1a\n";
    const Case cases[] = {
        {u"a.b.GIF"_s, "BM1", u"a.b.GIF"_s, QByteArray("BM1\0", 4), false},
        {u"no.jpg"_s, "text", u"a.b.GIF"_s, QByteArray("BM1\0", 4), true},
        {u"png.jpg"_s, png, u"a.b.GIF"_s, QByteArray("BM1\0", 4), true},
        {u"half.png"_s, "text", u"half.png"_s, QByteArray("BM1\0", 4), false},
        {u"is.PNG"_s, png, u"is.PNG"_s, QByteArray("BMpng\0", 6), false},
        {u"bare"_s, "BM2", u"bare"_s, QByteArray("BM2\0", 4), false},
    };
    for (const Case& each : cases) {
        root.write(each.name, each.bytes);
        dialogs.answer(root.path(each.name));
        editor.CmdBrowse_Click();
        EXPECT_EQ(window.image, each.image);
        EXPECT_EQ(shared.PicBytes, each.stored) << qPrintable(each.name);
        EXPECT_EQ(boxes.taken(), each.isReported ? QStringList{AnsweringBoxes::report(errors::invalidPicture)}
                                                 : QStringList());
    }
    dialogs.cancelNext();
    editor.CmdBrowse_Click();
    EXPECT_EQ(window.image, u"bare"_s);
}

TEST_F(EntryEditorTest, LoadsAndSavesNotes)
{
    editor.cmdSave_Click(); // nothing of empty ones
    root.write(u"in.txt"_s, "{\\rtf1 a\\par b}");
    dialogs.answer(root.path(u"in.txt"_s));
    editor.cmdOpen_Click();
    EXPECT_EQ(window.caption, u"File: in.txt"_s);
    EXPECT_EQ(window.loaded, u"in.txt|"_s + root.path(u"in.txt"_s));
    EXPECT_EQ(window.notes().plainText(), u"a\nb"_s);

    window.id = u"BLUS30443"_s;
    const QString target = root.path(u"out.rtf"_s);
    dialogs.answer(target, 1); // the filter decides, not the name
    editor.cmdSave_Click();
    EXPECT_EQ(root.read(u"out.rtf"_s), "a\r\nb\r\n");
    EXPECT_EQ(dialogs.asked.last().fileName, u"BLUS30443"_s);
    EXPECT_TRUE(dialogs.asked.last().asksBeforeOverwriting);
    EXPECT_EQ(window.blackened, 0);
    dialogs.answer(target, 2);
    editor.cmdSave_Click();
    EXPECT_TRUE(root.read(u"out.rtf"_s).startsWith("{\\rtf1"));
    EXPECT_EQ(window.blackened, 1);
    EXPECT_EQ(window.caption, u"File Saved as: out.rtf"_s);

    dialogs.answer(root.path(u"none/out.txt"_s), 1);
    editor.cmdSave_Click();
    EXPECT_EQ(boxes.taken(), QStringList{AnsweringBoxes::report(errors::pathNotFound)});
    EXPECT_EQ(window.caption, u"File Saved as: out.rtf"_s);
}

TEST_F(EntryEditorTest, DeletesTheSelectedGameFromTableAndLists)
{
    const auto remove = [this] { deleteEntry(shared, settings, boxes, main); };
    remove(); // nothing is selected
    main.row = 1;
    main.titles.removeLast(); // out of step
    boxes.answers = {no, yes};
    remove();
    EXPECT_EQ(main.games.size(), 2);
    EXPECT_EQ(boxes.taken(), QStringList{u"Delete Record|This will permanently delete//'BCES00509'//"
                                         "Do you want to proceed?"_s});
    remove();
    EXPECT_EQ(boxes.taken().last(), u"BCES00509 - Record Deleted!|Command completed successfully!"_s);
    EXPECT_EQ(rows().size(), 1);
    EXPECT_EQ(main.games, QStringList{u"BLUS30443"_s});
    EXPECT_EQ(main.titles, QStringList{u"Ashgrove"_s});
    EXPECT_EQ(main.row, -1);

    main.games = QStringList{u"not there"_s, u"a'b"_s};
    for (const bool isReported : {false, true}) {
        main.row = 0;
        boxes.answers = {yes};
        remove();
        EXPECT_EQ(boxes.taken().last().contains(u"ErrorException"_s), isReported);
        EXPECT_EQ(main.games.size(), 1);
    }
    shared.release();
}

TEST(EditorPanels, OpenBesideEachOtherAsTheirHeightsAllow)
{
    EditorPanels panels;
    const auto opened = [&](int panel) {
        panels.cmd_Collapse_Click(panel);
        QString open;
        for (int i = 0; i < EditorPanels::count; ++i)
            open += panels.isOpen(i) ? QString::number(i) : QString();
        return open;
    };
    EXPECT_EQ(opened(0), u"0"_s);
    EXPECT_EQ(opened(1), u"01"_s);
    EXPECT_EQ(opened(3), u"013"_s);
    EXPECT_EQ(panels.top(3), 950 + 475 + 210);
    EXPECT_EQ(opened(2), u"2"_s);
    EXPECT_EQ(panels.top(3), 210 + 210 + 1195);
    EXPECT_EQ(opened(1), u"1"_s);
    EXPECT_EQ(opened(1), u""_s);
}

} // namespace varnhold::test
