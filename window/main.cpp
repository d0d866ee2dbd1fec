#include "settingsprogram.h"

int main(int argc, char **argv)
{
    return static_cast<int>(runSettingsProgram(argc, argv));
}
