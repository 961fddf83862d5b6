#include "app/Arguments.h"

#include <QByteArrayView>
#include <QTextStream>

#include <cstdio>
#include <cstdlib>

namespace tarvo {

std::optional<int> answerArguments(int argc, char **argv)
{
    const QByteArrayView argument(argc > 1 ? argv[1] : "");
    if (argument.isEmpty())
        return std::nullopt;
    if (argument == "--version") {
        QTextStream(stdout) << "tarvo " TARVO_VERSION "\n";
        return EXIT_SUCCESS;
    }
    if (argument == "--help") {
        QTextStream(stdout) << "Usage: tarvo\n"
                               "Shows the state of a USB broadband modem in the status bar, and keeps running.\n"
                               "When it runs already, shows its status window.\n\n"
                               "  --help     Show this text.\n"
                               "  --version  Show the version.\n\n"
                               "Settings are made with tarvo-setup(1). See tarvo(1) for more.\n";
        return EXIT_SUCCESS;
    }
    QTextStream(stderr) << "tarvo: unknown argument " << argv[1] << "; see tarvo --help\n";
    return EXIT_FAILURE;
}

} // namespace tarvo
