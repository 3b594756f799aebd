#pragma once

#include "platform/RunTimeError.h"

#include <QString>

namespace varnhold {

class FileDialogs;
class GameList;
class GameListView;
class MessageBoxes;
class ResultList;
class SearchView;
class SharedDatabase;
class TextRows;
struct Paths;

/// Reads a list of ids and titles into the result list, and writes that into a table: new ids are added,
/// known ones updated. Failures are reported.
class ListImport
{
public:
    struct Services
    {
        SharedDatabase& database;
        SearchView& view;
        ResultList& results;
        GameListView& main;
        GameList& games;
        FileDialogs& dialogs;
        MessageBoxes& boxes;
        const Paths& paths;
    };

    explicit ListImport(const Services& services) : m_services(services) {}

    /// A list that the user chooses.
    void cmdGrab_Click();
    /// ps3gameids.txt of the program's folder.
    void readIdList();
    /// Afterwards the main list shows the imported rows alone, one that updated another twice; meant.
    void cmdImport_Click();

private:
    void readFile(const QString& title, const QString& path);
    [[nodiscard]] QString askTarget();
    void importInto(const QString& target);
    void importRow(int row, const QString& target);
    void writeRow(int row);

    Services m_services;
    int m_importListCount = 0; ///< lines of the list read last
    int m_all = 0;
    int m_updates = 0;
};

} // namespace varnhold
