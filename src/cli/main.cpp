#include "cli/Arguments.h"
#include "cli/Command.h"
#include "cli/Terminal.h"
#include "platform/RunTimeError.h"

#include <QCoreApplication>

using namespace varnhold;
using namespace varnhold::cli;
using namespace Qt::StringLiterals;

namespace {

ExitCode run(const Arguments& arguments, Terminal& terminal)
{
    if (arguments.help)
        terminal.printRaw(helpText(arguments).toUtf8());
    else if (arguments.version)
        terminal.print(u"varnhold-cli "_s + QCoreApplication::applicationVersion());
    else
        return arguments.command->run(arguments, terminal);
    return ExitCode::Fine;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"varnhold-cli"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(VARNHOLD_VERSION));
    Terminal terminal;
    try {
        return static_cast<int>(run(readArguments(QCoreApplication::arguments()), terminal));
    } catch (const UsageError& usage) {
        terminal.complain(printable(usage.problem));
        terminal.complain(u"\"varnhold-cli --help\" tells more."_s);
        return static_cast<int>(ExitCode::Usage);
    } catch (const RunTimeError& error) {
        terminal.complain(printable(error.description()));
        return static_cast<int>(ExitCode::Failed);
    }
}
