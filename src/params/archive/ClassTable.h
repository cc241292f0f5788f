#pragma once

#include "params/CircuitParams.h"
#include "params/Netlist.h"

#include <boost/serialization/tracking.hpp>
#include <boost/serialization/tracking_enum.hpp>
#include <boost/serialization/variant.hpp>
#include <boost/serialization/version.hpp>

#include <deque>
#include <map>
#include <set>
#include <tuple>
#include <utility>
#include <vector>

/// Whether objects of a class are also stored through pointers, and so carry an id.
template <class T> inline constexpr bool kStoredByPointer = false;
template <> inline constexpr bool kStoredByPointer<TModelClassDef> = true;
template <> inline constexpr bool kStoredByPointer<TModelData> = true;

/// Whether objects of a class carry an id in the archive: those that are stored through pointers,
/// and those of which the archive library says that they always do, as it does of variants.
template <class T>
inline constexpr bool kTracked = kStoredByPointer<T> ||
                                 static_cast<int>(boost::serialization::tracking_level<T>::value) ==
                                     static_cast<int>(boost::serialization::track_always);

/// The version of a class in the archive.
template <class T>
inline constexpr unsigned
    kClassVersion = static_cast<unsigned>(boost::serialization::version<T>::value);

/// What an archive remembers of a class.
template <class T> struct TArchiveClass {
    int mnId = -1;            ///< its number in the archive; -1 before it is first met
    bool mbDescribed = false; ///< its tracking and version stand in the archive already
};

/// The classes of one archive. They are numbered in the order in which they are first met.
class CClassTable
{
public:
    /// What is remembered of a class, which is given its number here if it is new.
    template <class T> TArchiveClass<T>& Meet() noexcept
    {
        auto& rClass = std::get<TArchiveClass<T>>(mClasses);
        if (rClass.mnId < 0) {
            rClass.mnId = mnCount++;
        }
        return rClass;
    }

private:
    template <class... TClass> using TList = std::tuple<TArchiveClass<TClass>...>;
    template <class TValue> using TByName = std::map<CStringU, TValue>;
    using TModels = TCircuitParams::TModels;
    using TDevices = TCircuitParams::TDevices;
    using TPinPath = std::pair<int, int>;

    // All that may stand in an archive.
    TList<TCircuitParams, TBidirectionalStringToIntMap, TModelClassDef, TModelClassHeader,
          TParamDefs, TParamDef, TModelData, TModelHeader, TDeviceData, TDeviceHeader, TParamValue,
          CStringU, TByName<int>, TByName<TModelClassDef>, TModels, TDevices, TParamValues,
          std::map<int, TModels>, std::map<int, TDevices>, std::set<CStringU>,
          std::vector<CStringU>, std::vector<TParamDef>, std::pair<const CStringU, int>,
          std::pair<const CStringU, TModelClassDef>, std::pair<const CStringU, TModelData>,
          std::pair<const CStringU, TDeviceData>, std::pair<const CStringU, TParamValue>,
          std::pair<const int, TModels>, std::pair<const int, TDevices>,
          // of netlists
          quorvaapi::TSubcktDefinition, quorvaapi::TSubcktLexicon, quorvaapi::TDevicePin,
          quorvaapi::TNodeDeviceConnections, std::map<CStringU, int, TStringLessNoCase>,
          std::vector<quorvaapi::TSubcktDefinition>, std::vector<TPinPath>, TPinPath,
          std::deque<quorvaapi::TDevicePin>, std::vector<std::deque<quorvaapi::TDevicePin>>>
        mClasses;
    int mnCount = 0;
};
