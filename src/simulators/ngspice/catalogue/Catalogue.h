#pragma once

#include "params/ModelClass.h"
#include "simulators/ngspice/listings/ClassPlan.h"
#include "simulators/ngspice/listings/ParamTables.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{

/// What a bare circuit showed (BareCircuits.h).
struct TBareListing {
    std::string sClass;   ///< the class that it is about
    std::string sShow;    ///< listing of `show all : all`
    std::string sShowMod; ///< listing of `showmod all : all`

    friend bool operator==(const TBareListing&, const TBareListing&) = default;
};

/// What a simulator can tell without a netlist.
struct TCatalogueListings {
    std::string sTables;             ///< listings of `devhelp -csv -type -flags`, see ParamTables.h
    std::vector<TBareListing> bares; ///< those that are known

    friend bool operator==(const TCatalogueListings&, const TCatalogueListings&) = default;
};

/// A class of the simulator.
struct TClass {
    TModelClassDef def;  ///< as the store takes it: a device's output-only parameters are its state
    CParamPlans model;   ///< the parameters of its model cards
    CParamPlans devices; ///< the parameters of its devices
};

/// The classes of a simulator.
class CCatalogue
{
public:
    /// Makes a class of each table, with the defaults that its bare circuit shows. A parameter that
    /// the bare circuit had to give, or that follows from that, has no default, and neither has one
    /// of a class without a bare circuit.
    /// @param rListings any bytes; of tables of one name the first one counts
    explicit CCatalogue(const TCatalogueListings& rListings);

    /// All classes, by name.
    [[nodiscard]] const std::map<std::string, TClass, std::less<>>& GetAll() const noexcept
    {
        return mClasses;
    }

    /// A class by its exact name; null if there is none.
    [[nodiscard]] const TClass* Find(std::string_view sName) const;

    /// The class of devices without a model card by their letter, in any case; null if there is
    /// none.
    [[nodiscard]] const TClass* FindByLetter(char cLetter) const;

    /// The class of a code model: the type on a .model card is the class's name, in any case. Null
    /// if there is none.
    [[nodiscard]] const TClass* FindByModelType(std::string_view sType) const;

private:
    std::map<std::string, TClass, std::less<>> mClasses;
};

} // namespace quorvawiz::ngspice
