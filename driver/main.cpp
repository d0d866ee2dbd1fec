#include "compile.h"

/// The exit status is always 0: the ordering application learns of problems from standard output and from the
/// output file.
int main(int argc, char **argv)
{
    compile(argc, argv);
    return 0;
}
