#include "cli/process.h"
#include "lint/run.h"

int main(int argumentCount, char** arguments) {
    metagen::prepareStandardStreams();
    metagen::installAbnormalEnd();
    return metagen::lint::run(argumentCount, arguments);
}
