#include "cli/Commands.h"

namespace varnhold::cli {

const std::vector<Command>& commands()
{
    static const std::vector<Command> all = {
        lookupCommand(), downloadCommand(), batchCommand(),  marksCommand(),  coverCommand(),
        reportCommand(), checkCommand(),    renameCommand(), hostsCommand(),  searchCommand(),
        tablesCommand(), exportCommand(),   importCommand(), backupCommand(), compactCommand(),
    };
    return all;
}

} // namespace varnhold::cli
