#include "support/FakeFileDialogs.h"

#include <gtest/gtest.h>

namespace varnhold::test {

FakeFileDialogs::~FakeFileDialogs()
{
    for (const Answer& answer : m_answers)
        ADD_FAILURE() << "dialog answer never used: " << qPrintable(answer.path);
}

std::optional<ChosenFile> FakeFileDialogs::chooseSavePath(const FileDialogRequest& request)
{
    const Answer answer = next(request);
    if (answer.path.isEmpty())
        return std::nullopt;
    return ChosenFile{answer.path, answer.path.mid(answer.path.lastIndexOf(u'/') + 1), answer.filter};
}

std::optional<ChosenFile> FakeFileDialogs::chooseFile(const FileDialogRequest& request)
{
    return chooseSavePath(request);
}

QString FakeFileDialogs::chooseFolder(const QString& prompt, const QString& startFolder)
{
    FileDialogRequest request;
    request.title = prompt;
    request.startFolder = startFolder;
    return next(request).path;
}

FakeFileDialogs::Answer FakeFileDialogs::next(const FileDialogRequest& request)
{
    asked.append(request);
    if (m_answers.isEmpty()) {
        ADD_FAILURE() << "unexpected dialog: " << qPrintable(request.title);
        return {};
    }
    return m_answers.takeFirst();
}

} // namespace varnhold::test
