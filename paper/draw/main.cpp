#include "drawprogram.h"

int main(int argc, char **argv)
{
    return static_cast<int>(runDrawProgram(argc, argv));
}
