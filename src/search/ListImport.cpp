#include "search/ListImport.h"

#include "gamedb/GameList.h"
#include "gamedb/GameListView.h"
#include "gamedb/SharedDatabase.h"
#include "gamedb/Statements.h"
#include "platform/BusyPointer.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "platform/ReadFile.h"
#include "platform/database/DatabaseErrors.h"
#include "search/ResultList.h"
#include "search/SearchView.h"
#include "state/Paths.h"

#include <QScopeGuard>

#include <limits>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostBytes = 512 * 1024 * 1024;

} // namespace

void ListImport::cmdGrab_Click()
{
    const std::optional<ChosenFile> chosen =
        m_services.dialogs.chooseFile({.title = u"Open Game ID List:"_s,
                                       .startFolder = m_services.paths.root,
                                       .filter = u"ID List (*.lst;*.txt)|*.lst;*.txt|All Files (*.*)|*.*"_s,
                                       .defaultExtension = u"*.lst"_s,
                                       .fileName = {}});
    if (chosen)
        readFile(chosen->title, chosen->path);
}

void ListImport::readIdList()
{
    readFile(u"ps3gameids.txt"_s, m_services.paths.idList());
}

void ListImport::readFile(const QString& title, const QString& path)
{
    SearchView& view = m_services.view;
    m_importListCount = 0;
    m_services.results.clear();
    view.enableImport(false);
    view.showFile(title, path);
    view.showProgress(1);
    const bool isRead = reporting(m_services.boxes, DescriptionLabel::WithBlank, [&] {
        const auto ready = qScopeGuard([&] {
            view.hideProgress();
            view.enableImport(true);
        });
        const auto busy = busyPointer(view);
        QString text;
        {
            const QByteArray bytes = varnhold::readFile(path, mostBytes);
            text = decodedList(bytes);
        }
        // Characters stand for the file's bytes: only how far the bar has come shows the difference.
        constexpr qsizetype most = std::numeric_limits<int>::max();
        view.showProgress(static_cast<int>(std::clamp<qsizetype>(text.size(), 1, most)));
        TextRows rows;
        ListCutter cutter(view.format());
        qsizetype read = 0;
        forEachLine(text, [&](QStringView line) {
            cutter.cut(line, rows);
            ++m_importListCount;
            read += line.size() + 2;
            view.setProgress(static_cast<int>(std::min(read, most)));
        });
        m_services.results.setRows(std::move(rows));
    });
    if (!isRead)
        return;
    view.setCaption(u"Import: "_s + QString::number(m_importListCount) + u" Records?"_s);
    view.focusImport();
}

QString ListImport::askTarget()
{
    const auto ask = [this](const QString& target, BoxButtons buttons) {
        return m_services.boxes.show(
            {u"Import List to\t\r\nTable:\t'"_s + target + u"'\r\nDo you want to proceed?"_s,
             u"Import List?"_s, BoxIcon::Question, buttons});
    };
    switch (ask(u"PS3Personal"_s, BoxButtons::YesNoCancel)) {
    case BoxAnswer::Yes:
        return u"PS3Personal"_s;
    case BoxAnswer::No:
        if (ask(u"PS3Games"_s, BoxButtons::YesNo) == BoxAnswer::Yes)
            return u"PS3Games"_s;
        return {};
    default:
        return {};
    }
}

void ListImport::cmdImport_Click()
{
    const QString target = askTarget();
    if (target.isEmpty())
        return;
    SearchView& view = m_services.view;
    GameListView& main = m_services.main;
    m_all = 0;
    m_updates = 0;
    try {
        const auto ready = qScopeGuard([&] {
            view.hideProgress();
            view.enableImport(true);
        });
        const auto busy = busyPointer(view);
        view.showProgress(std::max(m_services.results.count(), 1));
        view.enableImport(false);
        main.clearGames();
        main.clearUpdates();
        main.clearTitles();
        const auto shown = qScopeGuard([&] { main.refreshGames(); });
        importInto(target);
    } catch (const RunTimeError& error) {
        switch (error.number()) {
        case errors::none:
        case errors::database::noCurrentRecord:
        case errors::database::notAllowed:
            m_services.database.release();
            return;
        default:
            m_services.database.report(error);
            return;
        }
    }
    m_services.games.showIcons(false);
    view.setImportCaption(u"List Count: "_s + QString::number(main.gameCount()));
    view.setCaption(u"Import Complete"_s);
    m_services.boxes.show({u"Database has been updated.\r\n\r\nAll: \t\t"_s + QString::number(m_all) +
                               u"\r\nUpdates: \t\t"_s + QString::number(m_updates) +
                               u"\r\nNew Entries: \t"_s + QString::number(m_all - m_updates) + u"\r\n"_s,
                           u"Results"_s, BoxIcon::Information, BoxButtons::Ok});
}

void ListImport::importInto(const QString& target)
{
    SharedDatabase& database = m_services.database;
    database.connect();
    database.select(statements::table(target));
    const int count = m_services.results.count();
    int row = 0;
    const auto selected = qScopeGuard([&] { m_services.view.selectRow(std::min(row, count - 1)); });
    for (; row < count; ++row) {
        importRow(row, target);
        ++m_all;
        m_services.view.walkTo(row);
        m_services.main.goesOn();
    }
    database.close();
}

void ListImport::importRow(int row, const QString& target)
{
    SharedDatabase& database = m_services.database;
    const QString id = m_services.results.id(row);
    // A record without id and name is none that anything could reach again.
    if (id.isEmpty() && m_services.results.name(row).isEmpty())
        return;
    try {
        database.DBRecords->AddNew();
        writeRow(row);
    } catch (const RunTimeError& error) {
        if (error.number() != errors::database::duplicate)
            throw;
        database.DBRecords = std::make_unique<Recordset>();
        database.select(statements::update(target, id));
        writeRow(row);
        ++m_updates;
    }
    database.DBRecords->UpdateBatch();
}

/// Into the main window's lists first, whether the table takes it or not.
void ListImport::writeRow(int row)
{
    Recordset& records = *m_services.database.DBRecords;
    const QString id = m_services.results.id(row);
    const QString name = m_services.results.name(row);
    if (!id.isEmpty()) {
        records.setValue(u"GameID"_s, id);
        m_services.main.addGame(id);
    }
    if (!name.isEmpty()) {
        records.setValue(u"GameName"_s, name);
        m_services.main.addTitle(name);
    }
    records.Update();
}

} // namespace varnhold
