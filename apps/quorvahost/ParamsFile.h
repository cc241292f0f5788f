#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>

#include <QString>
#include <optional>

class TCircuitParams;

namespace quorvawiz::host
{

/// The params file that the host shows, with its store.
class CParamsFile
{
public:
    /// Reads a file in the place of the one there is. Where that fails, the one there is stays.
    /// @return what the library says, for the user; nullopt if the file was read
    std::optional<QString> Load(const QString& rsPath);

    /// True when a file was read.
    bool IsLoaded() const { return mpStore != nullptr; }

    /// The file's path; empty for none.
    const QString& Path() const { return msPath; }

    /// What the file holds. Whoever shows it keeps this: the file may be read again meanwhile.
    const boost::shared_ptr<TCircuitParams>& Store() const { return mpStore; }

private:
    QString msPath;
    boost::shared_ptr<TCircuitParams> mpStore;
};

} // namespace quorvawiz::host
