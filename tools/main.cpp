#include "command.h"

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    return static_cast<int>(runPalvestrin(arguments));
}
