#include "cli/abnormal_end.h"
#include "cli/driver.h"

int main(int argumentCount, char** arguments) {
    metagen::installAbnormalEnd();
    return metagen::runDriver(argumentCount, arguments);
}
