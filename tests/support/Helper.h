// Programs that a test starts for itself.
#pragma once

#include <QProcess>

#include <csignal>
#include <sys/prctl.h>

namespace support {

/// A program that ends with the test, also when the test crashes.
class Helper : public QProcess
{
public:
    Helper()
    {
        setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    }
};

} // namespace support
