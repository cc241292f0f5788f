#pragma once

#include "params/ModelClass.h"
#include "simulators/ngspice/listings/ParamTables.h"
#include "simulators/ngspice/listings/ShownValues.h"
#include "simulators/ngspice/listings/ValueOf.h"

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvawiz::ngspice
{

/// One parameter of a class.
struct TParamPlan {
    CStringU sName;                          ///< its first name
    EValueKind eKind = EValueKind::Real;     ///< what its values are
    EDirection eDirection = EDirection::Out; ///< Out: it is worked out by the simulator
    bool bPrincipal = false;                 ///< a value without a name is its value
    std::vector<std::string> shownDefault;   ///< the lines that show its default; empty without one
};

/// The parameters of a model card, or of a device, with the way from every name to them.
class CParamPlans
{
public:
    /// Makes one parameter of all rows of one id, whose first row without the flag R names it.
    explicit CParamPlans(const std::vector<TParamRow>& rRows);

    /// The parameters in the order of their first rows.
    [[nodiscard]] const std::vector<TParamPlan>& GetAll() const noexcept { return mPlans; }

    /// The parameter that a listing shows by a name; one that can't be asked for is none.
    /// @return null if there is none
    [[nodiscard]] const TParamPlan* FindShown(std::string_view sName) const;

    /// The parameter that a card sets by a name; one that can't be set is none.
    /// @return null if there is none
    [[nodiscard]] const TParamPlan* FindSet(std::string_view sName) const;

    /// The parameter of a value without a name; null if there is none.
    [[nodiscard]] const TParamPlan* FindPrincipal() const noexcept;

    /// Keeps the lines of a listing that show the default of a parameter.
    /// @param rsName its first name; there is such a parameter
    void SetShownDefault(const CStringU& rsName, const std::vector<std::string_view>& rTexts);

    /// The definitions of the parameters of some directions, without values.
    [[nodiscard]] TParamDefs MakeDefs(std::initializer_list<EDirection> directions) const;

private:
    struct THash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    using TIndex = std::unordered_map<std::string, std::size_t, THash, std::equal_to<>>;

    void AddName(const TParamRow& rRow, std::size_t nPlan);

    std::vector<TParamPlan> mPlans;
    std::vector<std::string> mDescriptions;
    std::vector<std::set<CStringU>> mAliases;
    TIndex mShown;
    TIndex mSet;
};

/// Finds all lines of one parameter in a listing, which follow one another.
/// @param rValues the listing of a device or a model
/// @param rnAt the first line of the parameter; becomes that behind its last one
/// @param rTexts receives the values; its memory is used again
void gTakeLines(const TShownValues& rValues, std::size_t& rnAt,
                std::vector<std::string_view>& rTexts);

} // namespace quorvawiz::ngspice
