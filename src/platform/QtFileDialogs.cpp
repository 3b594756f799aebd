#include "platform/QtFileDialogs.h"

#include "platform/FrontWindow.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// "Packages (*.pkg)|*.pkg|All Files (*.*)|*.*" as the toolkit's name filters. A "*.*" means every file here,
/// names without a dot too.
QStringList nameFilters(const QString& filter)
{
    QStringList result;
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts.at(i).section(u'(', 0, 0).trimmed();
        QString patterns = parts.at(i + 1);
        patterns.replace(u"*.*"_s, u"*"_s).replace(u';', u' ');
        result.append(name + u" ("_s + patterns + u')');
    }
    return result;
}

std::optional<ChosenFile> choose(const FileDialogRequest& request, QFileDialog::AcceptMode mode,
                                 QFileDialog::FileMode files)
{
    QFileDialog dialog(frontWindow(), request.title, request.startFolder);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(files);
    // Most callers ask before they overwrite, in their own words.
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.asksBeforeOverwriting);
    const QStringList filters = nameFilters(request.filter);
    dialog.setNameFilters(filters);
    dialog.setDefaultSuffix(QFileInfo(request.defaultExtension).suffix());
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    const QString path = dialog.selectedFiles().constFirst();
    const qsizetype filter = filters.indexOf(dialog.selectedNameFilter());
    return ChosenFile{path, QFileInfo(path).fileName(), static_cast<int>(std::max<qsizetype>(filter, 0)) + 1};
}

} // namespace

std::optional<ChosenFile> QtFileDialogs::chooseSavePath(const FileDialogRequest& request)
{
    return choose(request, QFileDialog::AcceptSave, QFileDialog::AnyFile);
}

std::optional<ChosenFile> QtFileDialogs::chooseFile(const FileDialogRequest& request)
{
    return choose(request, QFileDialog::AcceptOpen, QFileDialog::ExistingFile);
}

QString QtFileDialogs::chooseFolder(const QString& prompt, const QString& startFolder)
{
    return QFileDialog::getExistingDirectory(frontWindow(), prompt, startFolder);
}

} // namespace varnhold
