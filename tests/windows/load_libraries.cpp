// Loads the libraries whose names are its arguments, as a program does that does not say from
// where.

#include <windows.h>

int main(int count, char **names)
{
    for (int index = 1; index < count; ++index) {
        ::LoadLibraryA(names[index]);
    }
    return 0;
}
