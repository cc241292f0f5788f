#include "cli/Run.h"

int main(int argc, char** argv)
{
    return quorvawiz::cli::gRun(argc, argv);
}
