#include "backend.h"

int main(int argc, char **argv)
{
    return runBackend(argc, argv);
}
