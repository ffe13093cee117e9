// The floor under every start: an empty program that loads the SDK's library.
#include <dlfcn.h>

int main(int argumentCount, char** arguments) {
    return argumentCount == 2 && dlopen(arguments[1], RTLD_NOW | RTLD_LOCAL) != nullptr ? 0 : 1;
}
