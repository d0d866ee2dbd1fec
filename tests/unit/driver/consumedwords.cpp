// Answers how a program with windows leaves its command lines. A line of standard input is one, its words
// without the program's name, a tab between two. The answer is a line too: how many words are left, and then
// every place of the command line, "(null)" for none, a tab between two. A command line that ends the program
// has an empty line.
//
// Each command line meets a process of its own: the toolkit starts once.

#include <QApplication>
#include <QByteArrayList>

#include <iostream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

void answer(QByteArrayList words)
{
    char name[] = "consumedwords";
    std::vector<char *> places = {name};
    for (QByteArray &word : words)
        places.push_back(word.data());
    places.push_back(nullptr);
    int count = int(words.size()) + 1;
    const QApplication application(count, places.data());

    std::cout << count - 1;
    for (std::size_t i = 1; i + 1 < places.size(); ++i)
        std::cout << '\t' << (places[i] ? places[i] : "(null)");
    std::cout << std::endl;
}

} // namespace

int main()
{
    std::string line;
    while (std::getline(std::cin, line)) {
        const pid_t child = fork();
        if (child == 0) {
            answer(QByteArray::fromStdString(line).split('\t'));
            _exit(0);
        }
        int status = 0;
        if (waitpid(child, &status, 0) != child || status != 0)
            std::cout << std::endl;
    }
}
