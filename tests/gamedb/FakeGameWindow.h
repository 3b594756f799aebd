#pragma once

#include "gamedb/EntryView.h"
#include "gamedb/GameListView.h"

#include <QStringList>

namespace varnhold::test {

/// The main window as plain values, with a journal of what happened in which order.
class FakeGameWindow : public GameListView, public EntryView
{
public:
    bool goesOn() override { return true; }
    void showBusy(bool busy) override { note(busy ? "busy" : "idle"); }

    void clearGames() override
    {
        games.clear();
        note("clear games");
    }
    void clearTitles() override
    {
        titles.clear();
        note("clear titles");
    }
    void clearUpdates() override { note("clear updates"); }
    void addGame(const QString& id) override
    {
        games.append(id);
        note("game ", id);
    }
    void addTitle(const QString& title) override
    {
        titles.append(title);
        note("title ", title);
    }
    void refreshGames() override { note("refresh"); }
    [[nodiscard]] int gameCount() const override { return static_cast<int>(games.size()); }
    [[nodiscard]] QString game(int row) const override { return games.value(row); }
    void selectGame(int row) override { note("select ", QString::number(row)); }

    void checkIconsEntry(bool checked) override
    {
        iconsChecked = checked;
        note(checked ? "check icons" : "uncheck icons");
    }
    [[nodiscard]] bool iconsEntryChecked() const override { return iconsChecked; }
    void setShowItemImages(bool show) override { note(show ? "images" : "no images"); }
    void setItemImageSize(int size) override { note("image size ", QString::number(size)); }
    void addImage(const QString& path) override { note("add ", path); }
    void setImageIndex(int row, int image) override
    {
        note("image ", QString::number(row) + u'=' + QString::number(image));
    }
    void setRedrawFlag(bool redraw) override { note(redraw ? "redraw" : "no redraw"); }

    void setBlank(const QString& text) override { note("blank ", text); }
    void setStatus(const QString& text) override { note("status ", text); }
    void showListProgress(int value) override { note("bar ", QString::number(value)); }
    void setListProgressMaximum(int maximum) override { note("bar of ", QString::number(maximum)); }
    void setListProgress(int value) override { note("bar at ", QString::number(value)); }
    void hideListProgress() override { note("no bar"); }

    void showBlankPicture() override { note("blank picture"); }
    void clearTitleTexts() override { note("no title"); }
    void clearNotes() override { note("no notes"); }
    void showListViews() override { note("views"); }
    void thankOnDatabasePage(const QString& text) override { note("page ", text); }

    [[nodiscard]] bool startupInProgress() const override { return starting; }
    void showStatusOnSplash(const QString& text) override { note("splash ", text); }
    void showMessageOnSplash(const QString& text) override { note("splash message ", text); }
    void askForDatabase(const QString& label9) override { note("ask for database ", label9); }
    void askForTables(const QString& caption) override { note("ask for tables ", caption); }

    [[nodiscard]] QString gameIdText() const override { return gameId; }
    void showNotes(const QString& rtf) override { note("notes ", rtf); }
    void showStoredPicture(const QByteArray& bytes) override
    {
        picture = bytes;
        note("stored picture");
    }
    void showCoverFile(const QString& path) override { note("cover ", path); }
    void Make_Links() override { note("links"); }

    /// What was noted since the last call.
    QStringList taken()
    {
        QStringList all;
        all.swap(m_journal);
        return all;
    }

    QStringList games;
    QStringList titles;
    QString gameId;
    QByteArray picture;
    bool iconsChecked = false;
    bool starting = true;

private:
    void note(const char* entry, const QString& detail = {})
    {
        m_journal.append(QString::fromLatin1(entry) + detail);
    }

    QStringList m_journal;
};

} // namespace varnhold::test
