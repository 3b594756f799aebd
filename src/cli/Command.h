#pragma once

#include "cli/ExitCode.h"

#include <QList>
#include <QString>

namespace varnhold::cli {

struct Arguments;
class Terminal;

struct Option
{
    QString name; ///< without the "--"
    QString help;
    QString value = {}; ///< what its value is called; empty for a switch
};

/// One command of the program, as its source file describes it.
struct Command
{
    QString name;
    QString operands; ///< "ID"; empty when it takes none
    QString help;     ///< one sentence
    /// Options of the same name in several commands all take a value, or all do not.
    QList<Option> options;
    /// Throws UsageError for arguments that make no sense, before it does anything; RunTimeError with a
    /// sentence for what fails as a whole.
    ExitCode (*run)(const Arguments& arguments, Terminal& terminal) = nullptr;
};

} // namespace varnhold::cli
