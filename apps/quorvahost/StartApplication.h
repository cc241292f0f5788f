#pragma once

#include <QApplication>
#include <memory>

namespace quorvawiz::host
{

/// Makes the application of a program with windows. Where no window can be shown, for whatever
/// reason, it ends the program with a message and exit code 1.
/// @param pName the program, in the message
/// @param rnCount, pArguments as `main` has them; they live as long as the application
std::unique_ptr<QApplication> gStartApplication(const char* pName, int& rnCount, char** pArguments);

} // namespace quorvawiz::host
