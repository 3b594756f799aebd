#pragma once

#include "platform/MessageBoxes.h"
#include "platform/NetworkBrowser.h"

#include <QJsonDocument>
#include <QString>

namespace varnhold::cli {

/// The text without what would steer a terminal: control characters become "?". Documents come from outside.
QString printable(QString text);
/// A box has lines and tabs, a complaint is one line.
QString oneLine(const QString& text);

/// The three things that reach the user: results on standard output, complaints on standard error, and one
/// line of progress on standard error, which appears on a terminal only and is gone at the next complaint.
class Terminal
{
public:
    Terminal();

    /// One line, or several; a line end is added.
    void print(const QString& text);
    /// As it is.
    void printRaw(const QByteArray& bytes);
    /// What would steer a terminal is escaped.
    void printJson(const QJsonDocument& document);
    void complain(const QString& text);

    void showProgress(const QString& line);
    void clearProgress();

private:
    bool m_showsProgress;
    qsizetype m_progressLength = 0;
};

/// Boxes become complaints; a question is answered No.
class TerminalBoxes : public MessageBoxes
{
public:
    explicit TerminalBoxes(Terminal& terminal) : m_terminal(terminal) {}

    BoxAnswer show(const MessageBox& box) override;
    /// Critical and exclamation boxes so far.
    [[nodiscard]] int failures() const { return m_failures; }

private:
    Terminal& m_terminal;
    int m_failures = 0;
};

/// The question about a certificate is answered No, and says what is wrong.
class TerminalAlert : public SecurityAlert
{
public:
    explicit TerminalAlert(Terminal& terminal) : m_terminal(terminal) {}

    bool accept(const QString& host, const QStringList& problems) override;
    void cancel() override {}

private:
    Terminal& m_terminal;
};

} // namespace varnhold::cli
