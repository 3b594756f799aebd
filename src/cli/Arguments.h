#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace varnhold::cli {

enum class Command { Help, Version, Lookup, Download, Hosts };

struct Arguments
{
    Command command = Command::Help;
    QString gameId; ///< nine characters, upper-case letters and digits
    bool json = false;
    QString packageVersion; ///< empty: the last package of the document
    bool all = false;
    QString folder; ///< empty: by the settings
    bool overwrite = false;
    QString root;              ///< empty: wherever the program keeps its files
    std::optional<int> server; ///< 1 to 6; without: by the settings
};

/// A sentence about arguments that make no sense.
struct UsageError
{
    QString problem;
};

/// Reads the arguments, the program's own name first. Throws UsageError.
Arguments readArguments(const QStringList& arguments);

QString helpText();

} // namespace varnhold::cli
