/* Runs a program to its end, whatever it ends with, and prints its peak memory, in KiB.
 *
 *   peak_memory PROGRAM [ARGUMENT...]
 */
#include <stdio.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char **argv)
{
    struct rusage usage;
    int status = 0;
    const pid_t child = argc > 1 ? fork() : -1;
    if (child == 0) {
        execvp(argv[1], argv + 1);
        _exit(127);
    }
    if (child < 0 || wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) ||
        WEXITSTATUS(status) == 127) {
        fprintf(stderr, "peak_memory: error: %s did not run to its end\n", argc > 1 ? argv[1] : "no program");
        return 1;
    }
    printf("%ld\n", usage.ru_maxrss);
    return 0;
}
