#include "dispatch.h"

int main(int argc, char **argv)
{
    return static_cast<int>(runPalvestrin(QByteArrayList(argv + 1, argv + argc)));
}
