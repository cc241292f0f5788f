#pragma once

#include <QApplication>

namespace quorvawiz::host
{

/// Shows the waiting pointer while it lives.
class CWaitPointer
{
public:
    CWaitPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~CWaitPointer() { QApplication::restoreOverrideCursor(); }
    CWaitPointer(const CWaitPointer&) = delete;
    CWaitPointer& operator=(const CWaitPointer&) = delete;
};

} // namespace quorvawiz::host
