#include "cli/driver.h"
#include "support/end_run.h"
#include "support/platform.h"

int main(int argumentCount, char** arguments) {
    metagen::prepareStandardStreams();
    metagen::installAbnormalEnd();
    return metagen::runDriver(argumentCount, arguments);
}
