// processtime PROGRAM [ARGUMENT...]: prints the milliseconds from the start of the program to its end.
#include "Spawn.h"

#include <cstdio>
#include <sys/wait.h>

int main(int argc, char** argv)
{
    if (argc < 2)
        return 2;
    const auto start = Clock::now();
    const pid_t child = spawn(argv + 1);
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child || status != 0) {
        std::fprintf(stderr, "%s failed.\n", argv[1]);
        return 1;
    }
    std::printf("%.4f\n", millisecondsSince(start));
}
