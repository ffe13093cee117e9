#include "cli/driver.h"
#include "cli/process.h"

int main(int argumentCount, char** arguments) {
    metagen::prepareStandardStreams();
    metagen::installAbnormalEnd();
    return metagen::runDriver(argumentCount, arguments);
}
