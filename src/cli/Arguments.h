#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace varnhold::cli {

struct Command;

/// What stands on the command line, as far as it holds for every command.
struct Arguments
{
    const Command* command = nullptr; ///< null: general help, or the version
    bool help = false;
    bool version = false;
    QStringList operands; ///< what follows the command's name
    QString root;         ///< empty: wherever the program keeps its files
    QHash<QString, QStringList> options;

    /// Only of options that the command has.
    [[nodiscard]] bool has(const QString& option) const { return options.contains(option); }
    /// Of an option that is given: its last value, never empty. Else empty.
    [[nodiscard]] QString value(const QString& option) const;
};

/// A sentence about arguments that make no sense.
struct UsageError
{
    QString problem;
};

/// Reads the arguments, the program's own name first. Throws UsageError.
Arguments readArguments(const QStringList& arguments);

/// The help of the command that is given, else of the program.
QString helpText(const Arguments& arguments);

/// An option's value as a whole number; `otherwise` when it is not given. Throws UsageError outside the
/// range.
int numberOf(const Arguments& arguments, const QString& option, int least, int most, int otherwise);

/// The text as a title's id: nine characters, upper-case letters and digits. Throws UsageError.
QString readGameId(const QString& text);
/// The single operand as a title's id. Throws UsageError.
QString gameIdOf(const Arguments& arguments);
/// Throws UsageError when there are operands.
void refuseOperands(const Arguments& arguments);

} // namespace varnhold::cli
