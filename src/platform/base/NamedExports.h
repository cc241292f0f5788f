#pragma once

#include <memory>
#include <string_view>

/// The export table of the system's own library, in which the other side's extensions are looked up
/// by name at run time, so that nothing links against them.
class INamedExports
{
public:
    /// A function of any signature; the caller knows it by the name.
    using TFunction = void (*)();

    INamedExports() = default;
    INamedExports(const INamedExports&) = delete;
    INamedExports& operator=(const INamedExports&) = delete;
    virtual ~INamedExports() = default;

    /// Looks a function up.
    /// @param sName its exact name
    /// @return null if there is none
    [[nodiscard]] virtual TFunction Find(std::string_view sName) const = 0;

    /// Frees a block of the process heap, as exports hand them out.
    /// @param pBlock the block, not null
    virtual void FreeHeapBlock(void* pBlock) = 0;
};

/// The current table. On a system without the other side it finds nothing.
[[nodiscard]] std::shared_ptr<INamedExports> gGetNamedExports();

/// Puts a table in the place of the current one, for the whole process; unguarded, so while no
/// other thread uses one.
/// @param pExports the new one; null for the one that finds nothing
void gSetNamedExports(std::shared_ptr<INamedExports> pExports);
