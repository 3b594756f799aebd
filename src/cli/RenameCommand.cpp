#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Workspace.h"
#include "platform/Folders.h"
#include "platform/RunTimeError.h"
#include "tools/FolderNames.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <vector>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

/// Which of the names a run would meet are taken, without one that has run.
class Preview
{
public:
    /// Throws as renameFolder() does, for what can be known before.
    void rename(const QString& from, const QString& to)
    {
        if (to == from)
            return;
        if (to.isEmpty())
            throw RunTimeError(errors::fileExists);
        const QString parent = QFileInfo(to).path();
        if (!to.startsWith(u'/') || !isThere(parent))
            throw RunTimeError(errors::pathNotFound);
        if (isThere(to) && to.compare(from, Qt::CaseInsensitive) != 0)
            throw RunTimeError(errors::fileExists);
        m_gone.insert(from);
        m_gone.remove(to);
        m_made.insert(to);
        m_made.remove(from);
    }

private:
    [[nodiscard]] bool isThere(const QString& path) const
    {
        const QFileInfo info(path);
        return m_made.contains(path) || (!m_gone.contains(path) && (info.exists() || info.isSymLink()));
    }

    QSet<QString> m_made;
    QSet<QString> m_gone;
};

void requireFree(const QString& path)
{
    if (isGuarded(path))
        throw RunTimeError(errors::pathFileAccess, u"\"%1\" is no folder to be tidied."_s.arg(path));
}

ExitCode run(const Arguments& arguments, Terminal& terminal)
{
    if (arguments.operands.size() != 1)
        throw UsageError{u"\"rename\" needs the name of one folder."_s};
    Workspace workspace(arguments, terminal);
    const QString base = QDir::cleanPath(QDir(arguments.operands.first()).absolutePath());
    requireFree(base);
    std::vector<FolderEntry> folders;
    try {
        folders = subfolders(base);
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), u"\"%1\" cannot be read: %2."_s.arg(base, error.description()));
    }
    const NameCleaning cleaning = NameCleaning::from(workspace.settings().unwantedStrings(),
                                                     workspace.settings().isChecked(Check::Double));
    if (cleaning.unwanted.contains(u"000"_s))
        terminal.complain(
            u"\"000\" is among the unwanted texts, and cuts ids too, such as BCUS10001; the marks "
            u"of such a folder are found no more."_s);

    const bool applies = arguments.has(u"apply"_s);
    Preview preview;
    qsizetype renamed = 0;
    for (const FolderEntry& folder : folders) {
        if (!folder.isText) {
            terminal.complain(printable(u"\"%1\" is passed over: its name is no text."_s.arg(folder.path)));
            continue;
        }
        const QString& from = folder.path;
        const QString to = cleanedPath(from, cleaning);
        try {
            requireFree(to);
            if (applies)
                renameFolder(from, to);
            else
                preview.rename(from, to);
        } catch (const RunTimeError& error) {
            terminal.complain(printable(u"\"%1\" to \"%2\": %3. The run %4 here."_s.arg(
                from, to, error.description(), applies ? u"ends"_s : u"would end"_s)));
            return ExitCode::Failed;
        }
        if (to == from)
            continue;
        ++renamed;
        terminal.print(printable(from) + u"\n  "_s + printable(to));
    }
    terminal.print(u"%1 of %2 folders %3"_s.arg(renamed)
                       .arg(folders.size())
                       .arg(applies ? u"renamed"_s : u"would be renamed; --apply does it"_s));
    return ExitCode::Fine;
}

} // namespace

Command renameCommand()
{
    return {u"rename"_s,
            u"DIR"_s,
            u"Shows which folders in DIR would lose the unwanted texts of the settings."_s,
            {{u"apply"_s, u"Rename them, at once and without a way back."_s}},
            run};
}

} // namespace varnhold::cli
