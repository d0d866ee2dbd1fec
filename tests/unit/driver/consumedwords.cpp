// Prints the first two words of its command line as a GUI application leaves them: one line each, "(null)"
// for none. There must be two at least.
//
// They are the places as they stand, whatever the count says: behind the words that are left, a place keeps
// what it held.

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    for (int i = 1; i <= 2; ++i)
        std::puts(argv[i] ? argv[i] : "(null)");
    return 0;
}
