// The smallest program of a user: it sees installed headers and the installed archive, nothing
// else.

#include "platform/base/StringA.h"
#include "quorvawiz/version.h"

#include <iostream>

int main()
{
    CString text("  ic v(out)=1");
    text.TrimLeft();
    if (text != "ic v(out)=1") {
        std::cerr << "TrimLeft left \"" << text.GetString() << "\"\n";
        return 1;
    }
    std::cout << "quorvawiz " << quorvawiz::kVersion << " is usable\n";
    return 0;
}
