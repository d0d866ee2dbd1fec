#include <QApplication>

/// The entry of the module: an application object that consumes the toolkit's own options from `argv`. `argc`
/// and `argv` must outlive it; the caller owns it.
extern "C" __attribute__((visibility("default"))) QCoreApplication *palvestrinNewGuiApplication(int &argc,
                                                                                                char **argv)
{
    // Nothing is ever shown, and most servers have no display: without this the toolkit would abort on them.
    // A platform that the user chose, by this variable or by -platform, is left alone.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "minimal");
    return new QApplication(argc, argv);
}
