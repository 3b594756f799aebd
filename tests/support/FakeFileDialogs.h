#pragma once

#include "platform/FileDialogs.h"

#include <QList>

namespace varnhold::test {

/// Answers dialogs from a script, in order. A dialog without an answer (it is cancelled) and an answer that
/// was never used fail the test.
class FakeFileDialogs : public FileDialogs
{
public:
    ~FakeFileDialogs() override;

    void answer(const QString& path) { m_answers.append(path); }
    void cancelNext() { m_answers.append(QString()); }

    std::optional<ChosenFile> chooseSavePath(const FileDialogRequest& request) override;
    std::optional<ChosenFile> chooseFile(const FileDialogRequest& request) override;
    QString chooseFolder(const QString& prompt, const QString& startFolder) override;

    QList<FileDialogRequest> asked; ///< a folder question has its prompt as title

private:
    QString next(const FileDialogRequest& request);

    QList<QString> m_answers;
};

} // namespace varnhold::test
