#include "application.h"

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>

namespace {

constexpr char modulePath[] = PALVESTRIN_MODULES_FROM_BIN "/libpalvestrin-guiapplication.so";
constexpr char entryName[] = "palvestrinNewGuiApplication";
using NewGuiApplication = QCoreApplication *(int &argc, char **argv);

bool mayHaveToolkitOptions(int argc, char **argv)
{
    return std::any_of(argv + 1, argv + argc, [](const char *word) { return word[0] == '-'; });
}

/// Null when the module is not installed. It stays loaded: the toolkit cannot be unloaded.
NewGuiApplication *loadGuiModule()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        return nullptr;
    void *module = dlopen((program.parent_path() / modulePath).c_str(), RTLD_NOW);
    return module ? reinterpret_cast<NewGuiApplication *>(dlsym(module, entryName)) : nullptr;
}

} // namespace

std::unique_ptr<QCoreApplication> newApplication(int &argc, char **argv)
{
    if (!mayHaveToolkitOptions(argc, argv))
        return std::make_unique<QCoreApplication>(argc, argv);
    NewGuiApplication *newGuiApplication = loadGuiModule();
    return std::unique_ptr<QCoreApplication>(newGuiApplication ? newGuiApplication(argc, argv) : nullptr);
}
