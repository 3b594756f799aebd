#include "search/ListImport.h"

#include "SearchWorld.h"
#include "platform/database/DatabaseErrors.h"
#include "search/ListExport.h"

namespace varnhold::test {

using namespace Qt::StringLiterals;

class ListImportTest : public SearchWorld
{
protected:
    void grab(const QByteArray& bytes)
    {
        root.write(u"list.txt"_s, bytes);
        dialogs.answer(root.path(u"list.txt"_s));
        import.cmdGrab_Click();
    }
    void importAs(const QList<BoxAnswer>& answers)
    {
        boxes.answers = answers;
        import.cmdImport_Click();
    }
    [[nodiscard]] QStringList table(const QString& name) const
    {
        return database.column(u"SELECT coalesce(GameID, '-') || '|' || coalesce(GameName, '-') FROM "_s +
                               name);
    }
    static QString result(int all, int updates)
    {
        return u"Results|Database has been updated.//All: \t\t%1/Updates: \t\t%2/New Entries: \t%3/"_s
            .arg(all)
            .arg(updates)
            .arg(all - updates);
    }
    static QString question(const QString& target)
    {
        return u"Import List?|Import List to\t/Table:\t'%1'/Do you want to proceed?"_s.arg(target);
    }

    ListImport import{{shared, view, results, main, games, dialogs, boxes, root.paths()}};
};

TEST_F(ListImportTest, GrabsAListAndTellsWhatItCannotRead)
{
    grab("ABCD00001 One\r\nAB\n\nABCD00002 Two");
    EXPECT_EQ(listed(), (QStringList{u"ABCD00001|One"_s, u"AB|"_s, u"|"_s, u"ABCD00002|Two"_s}));
    EXPECT_EQ(view.title, u"Import: 4 Records?"_s);
    EXPECT_EQ(view.file, u"list.txt|"_s + root.path(u"list.txt"_s));
    EXPECT_TRUE(view.importEnabled && !view.bar && view.importFocused);
    dialogs.cancelNext();
    import.cmdGrab_Click();
    EXPECT_EQ(results.count(), 4);
    import.readIdList();
    EXPECT_EQ(boxes.taken(), QStringList{AnsweringBoxes::report(errors::fileNotFound)});
    EXPECT_TRUE(view.importEnabled && !view.bar && !view.busy);
}

TEST_F(ListImportTest, AddsNewRowsAndUpdatesKnownOnes)
{
    database.addGames(u"PS3Games"_s, {{u"ABCD00001"_s, u"old"_s}, {u"ABCD00009"_s, u"kept"_s}});
    grab("ABCD00001 One\nABCD00002 Two\nABCD00002 Twice\n\nABCD00009\nabcd00001 Case\nAB\n");
    importAs({BoxAnswer::No, BoxAnswer::Yes});
    EXPECT_EQ(boxes.taken(),
              (QStringList{question(u"PS3Personal"_s), question(u"PS3Games"_s), result(7, 4)}));
    EXPECT_EQ(table(u"PS3Games"_s),
              (QStringList{u"abcd00001|Case"_s, u"ABCD00009|kept"_s, u"ABCD00002|Twice"_s, u"AB|-"_s}));
    // A row that updates another came into the lists at its insert, too.
    EXPECT_EQ(main.games.count(u"ABCD00002"_s), 3);
    EXPECT_EQ(view.title, u"Import Complete"_s);
    EXPECT_EQ(view.importTitle, u"List Count: %1"_s.arg(main.gameCount()));
    EXPECT_EQ(view.selected, 6);
    importAs({BoxAnswer::Yes});
    EXPECT_EQ(boxes.taken().last(), result(7, 2));
}

TEST_F(ListImportTest, LeavesAllAsItIsWithoutAYes)
{
    main.games = {u"stays"_s};
    grab("ABCD00001 One\n");
    importAs({BoxAnswer::Cancel});
    importAs({BoxAnswer::No, BoxAnswer::No});
    EXPECT_EQ(boxes.taken().size(), 3);
    EXPECT_EQ(main.games, QStringList{u"stays"_s});
    EXPECT_EQ(table(u"PS3Personal"_s), QStringList());
}

TEST_F(ListImportTest, EndsAtARowThatItCannotUpdateAndKeepsThoseBeforeIt)
{
    database.addGames(u"PS3Personal"_s, {{u"O'Neil 01"_s, u"old"_s}});
    grab("ABCD00001 One\nO'Neil 01 new\nABCD00002 Two\n");
    importAs({BoxAnswer::Yes});
    EXPECT_EQ(boxes.taken().last(), AnsweringBoxes::report(errors::database::badSyntax));
    EXPECT_EQ(table(u"PS3Personal"_s), (QStringList{u"O'Neil 01|old"_s, u"ABCD00001|One"_s}));
    EXPECT_EQ(view.selected, 1);
    EXPECT_TRUE(view.importEnabled && !view.busy);
}

TEST_F(ListImportTest, ExportsWhatItsOwnImportReads)
{
    TextRows rows;
    rows.append(u"ABCD00001", u"One\r\nline");
    rows.append(u"ABCD00002", u"\u732b");
    results.setRows(std::move(rows));
    const QString path = root.path(u"out.txt"_s);
    view.title = u"before"_s;
    const auto save = [&] { cmdExport_Click({view, results, dialogs, boxes, sounds, root.paths()}); };
    dialogs.cancelNext();
    save();
    EXPECT_EQ(view.title, u"before"_s);
    dialogs.answer(path);
    save();
    EXPECT_TRUE(dialogs.asked.last().asksBeforeOverwriting);
    EXPECT_EQ(view.title, u"Save Complete"_s);
    dialogs.answer(path);
    import.cmdGrab_Click();
    EXPECT_EQ(listed(), (QStringList{u"ABCD00001|One line"_s, u"ABCD00002|\u732b"_s}));
    dialogs.answer(root.path(u"none/out.txt"_s));
    save();
    EXPECT_EQ(boxes.taken(), QStringList{AnsweringBoxes::report(errors::pathNotFound)});
    EXPECT_TRUE(view.searchEnabled && !view.bar);
}

} // namespace varnhold::test
