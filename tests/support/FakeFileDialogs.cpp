#include "support/FakeFileDialogs.h"

#include <gtest/gtest.h>

namespace varnhold::test {

namespace {

std::optional<ChosenFile> chosen(const QString& path)
{
    if (path.isEmpty())
        return std::nullopt;
    return ChosenFile{path, path.mid(path.lastIndexOf(u'/') + 1)};
}

} // namespace

FakeFileDialogs::~FakeFileDialogs()
{
    for (const QString& path : m_answers)
        ADD_FAILURE() << "dialog answer never used: " << qPrintable(path);
}

std::optional<ChosenFile> FakeFileDialogs::chooseSavePath(const FileDialogRequest& request)
{
    return chosen(next(request));
}

std::optional<ChosenFile> FakeFileDialogs::chooseFile(const FileDialogRequest& request)
{
    return chosen(next(request));
}

QString FakeFileDialogs::chooseFolder(const QString& prompt, const QString& startFolder)
{
    FileDialogRequest request;
    request.title = prompt;
    request.startFolder = startFolder;
    return next(request);
}

QString FakeFileDialogs::next(const FileDialogRequest& request)
{
    asked.append(request);
    if (m_answers.isEmpty()) {
        ADD_FAILURE() << "unexpected dialog: " << qPrintable(request.title);
        return {};
    }
    return m_answers.takeFirst();
}

} // namespace varnhold::test
