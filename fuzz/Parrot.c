// The process that talks with the server, as WireFuzz has it: it says what stands in a file.
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

int main(void)
{
    const char *name = getenv("QN_WORDS");
    char part[65536];
    const int words = name ? open(name, O_RDONLY) : -1;
    if (read(STDIN_FILENO, part, sizeof(part)) <= 0) // the question
        return EXIT_FAILURE;
    for (ssize_t count; (count = read(words, part, sizeof(part))) > 0;)
        if (write(STDIN_FILENO, part, (size_t)count) < 0)
            return EXIT_FAILURE;
    return EXIT_SUCCESS;
}
