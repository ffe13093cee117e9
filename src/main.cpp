#include "cli/abnormal_end.h"
#include "cli/driver.h"
#include "cli/standard_streams.h"

int main(int argumentCount, char** arguments) {
    metagen::prepareStandardStreams();
    metagen::installAbnormalEnd();
    return metagen::runDriver(argumentCount, arguments);
}
