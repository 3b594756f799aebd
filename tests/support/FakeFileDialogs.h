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

    void answer(const QString& path, int filter = 1) { m_answers.append({path, filter}); }
    void cancelNext() { m_answers.append(Answer()); }

    std::optional<ChosenFile> chooseSavePath(const FileDialogRequest& request) override;
    std::optional<ChosenFile> chooseFile(const FileDialogRequest& request) override;
    QString chooseFolder(const QString& prompt, const QString& startFolder) override;

    QList<FileDialogRequest> asked; ///< a folder question has its prompt as title

private:
    struct Answer
    {
        QString path;
        int filter = 1;
    };
    Answer next(const FileDialogRequest& request);

    QList<Answer> m_answers;
};

} // namespace varnhold::test
