#pragma once

namespace varnhold {

class FileDialogs;
class MessageBoxes;
class ResultList;
class SearchView;
class Sounds;
struct Paths;

struct ListExportServices
{
    SearchView& view;
    const ResultList& results;
    FileDialogs& dialogs;
    MessageBoxes& boxes;
    Sounds& sounds;
    const Paths& paths;
};

/// Writes the result list to a file that the user chooses, a line a row. A failure is reported and leaves
/// the file that was there.
void cmdExport_Click(const ListExportServices& services);

} // namespace varnhold
