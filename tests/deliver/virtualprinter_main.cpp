// virtualprinter ROLL: a receipt printer on a port of its own, which it tells on standard output. Its habits
// come on standard input, a line each, and each is answered with "ok" or "no". It ends with its standard
// input.

#include "virtualprinter.h"

#include <csignal>
#include <iostream>
#include <poll.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

/// Whole lines of standard input; false at its end.
bool readLines(std::string &begun, VirtualPrinter &printer)
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    char piece[512];
    while (poll(&input, 1, 0) > 0) {
        const ssize_t length = read(STDIN_FILENO, piece, sizeof piece);
        if (length <= 0)
            return false;
        begun.append(piece, std::size_t(length));
    }
    for (std::size_t end = 0; (end = begun.find('\n')) != std::string::npos; begun.erase(0, end + 1))
        std::cout << (printer.obey(begun.substr(0, end)) ? "ok" : "no") << std::endl;
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::signal(SIGPIPE, SIG_IGN);
    VirtualPrinter printer(argv[1]);
    std::cout << printer.port() << std::endl;
    std::string begun;
    while (readLines(begun, printer))
        printer.work(STDIN_FILENO);
    return 0;
}
