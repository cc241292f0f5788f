#pragma once

#include "foundation/NonCopyable.h"
#include "foundation/StringU.h"
#include "params/DeviceData.h"
#include "params/ListEntries.h"
#include "params/ModelClass.h"
#include "params/ModelData.h"
#include "params/SubcktTable.h"

#include <map>
#include <utility>
#include <vector>

/// What a simulation run knew about its circuit: model classes with the parameters that they
/// define, declared models, device instances, and every value that was set. It holds names,
/// definitions and values, and works nothing out.
///
/// A subcircuit id below 1 is the top level. -1 says that there is no such subcircuit, or stands
/// for all of them where a list is asked for. Maps, and so lists, are in the order of operator< of
/// CStringU, which isn't alphabetical.
///
/// It is held by boost::shared_ptr and never copied, as pointers lead into its own maps. Lookups
/// write caches and pointers, also of a const store, so that it is for one thread alone. What is
/// missing is told by null, -1 or an empty list.
class TCircuitParams : public TNonCopyable
{
public:
    /// Models by their names.
    using TModels = std::map<CStringU, TModelData>;
    /// Devices by their names.
    using TDevices = std::map<CStringU, TDeviceData>;
    /// A subcircuit's name and a device's.
    using TDeviceKey = std::pair<CStringU, CStringU>;
    /// The order of device keys without regard to case, the subcircuit first.
    struct TDeviceKeyLessNoCase {
        /// Tells whether the left key is the lesser.
        bool operator()(const TDeviceKey& rLeft, const TDeviceKey& rRight) const noexcept;
    };

    TBidirectionalStringToIntMap mSubcktTable;          ///< subcircuit paths and their ids
    std::map<CStringU, TModelClassDef> mModelClasses;   ///< electrical classes by name
    std::map<CStringU, TModelClassDef> mOpticalClasses; ///< optical classes by name
    std::map<int, TModels> mCircuitModelDatasets;       ///< models by subcircuit id
    std::map<int, TDevices> mCircuitDeviceDatasets;     ///< devices by subcircuit id
    /// From any spelling of (subcircuit, device) to the exact one; filled by GetDeviceDataNoCase.
    mutable std::map<TDeviceKey, TDeviceKey, TDeviceKeyLessNoCase> mDeviceNameIndex;

    /// Adds a subcircuit, and an empty set of models and of devices under its id where there is
    /// none.
    /// @param rsName, nId as TBidirectionalStringToIntMap::Add takes them
    void AddSubckt(const CStringU& rsName, int nId);

    /// Adds an electrical class, or replaces the one of its name.
    void AddModelClass(const TModelClassDef& rClass);

    /// Adds an optical class, or replaces the one of its name. Nothing is ever linked to it.
    void AddOpticalClass(const TModelClassDef& rClass);

    /// Adds a model to its subcircuit, or replaces the one of its name, and links it to its class.
    /// @param rModel its subcircuit has been added
    void AddModel(const TModelData& rModel);

    /// Adds a device to its subcircuit, or replaces the one of its name, and links it to its class
    /// and its model.
    /// @param rDevice its subcircuit, class and model have been added
    void AddDevice(const TDeviceData& rDevice);

    /// An electrical class.
    /// @return null if there is none of that name
    [[nodiscard]] const TModelClassDef* GetModelClass(const CStringU& rsName) const;

    /// A model, linked to its class anew.
    /// @return null if there is none
    [[nodiscard]] const TModelData* GetModelData(int nSubckt, const CStringU& rsName) const;
    /// The same by the subcircuit's name.
    [[nodiscard]] const TModelData* GetModelData(const CStringU& rsSubckt,
                                                 const CStringU& rsName) const;

    /// A device, linked to its class and model anew.
    /// @return null if there is none, and for the id -1
    [[nodiscard]] const TDeviceData* GetDeviceData(int nSubckt, const CStringU& rsName) const;
    /// The same by the subcircuit's name.
    [[nodiscard]] const TDeviceData* GetDeviceData(const CStringU& rsSubckt,
                                                   const CStringU& rsName) const;

    /// A device by names in any case. The first call with a subcircuit in the table makes an index,
    /// which what is added later doesn't join; of names that differ in their case alone it has the
    /// first one, in the order of ids and then of the map.
    /// @return null if there is none
    [[nodiscard]] const TDeviceData* GetDeviceDataNoCase(const CStringU& rsSubckt,
                                                         const CStringU& rsName) const;

    /// All models, by subcircuit id and then in the order of the map. Each is linked to its class
    /// by name, and left out where the store has no such class.
    [[nodiscard]] std::vector<TModelListEntry> GetModelList() const;

    /// The devices of a subcircuit in the order of the map.
    /// @param nSubckt its id; -1 for all, by subcircuit id
    [[nodiscard]] std::vector<TDeviceListEntry> GetDeviceList(int nSubckt) const;

    /// The name of a subcircuit; empty for an id that the table doesn't have.
    [[nodiscard]] CStringU GetSubcktName(int nId) const { return mSubcktTable.GetName(nId); }

    /// The id of a subcircuit; -1 for a name that the table doesn't have.
    [[nodiscard]] int GetSubcktId(const CStringU& rsName) const
    {
        return mSubcktTable.Find(rsName);
    }

    /// Reads a params file into this store, which is empty. Where the read breaks off, the store
    /// has what was read so far. A text archive may hold any bytes. An XML archive is read by the
    /// library as it is, and must come from whom one trusts: a damaged one can crash.
    /// @param rsPath the file, whose path's bytes go to the system
    /// @param rsFormat "XML" in any case for the XML archive, anything else for the text archive
    /// @return the version of a text archive; 0 for XML
    /// @throws CParamsFileError "Params file open failed!" if the file can't be opened,
    ///         "Params file ReadThis() operation failed!" for everything else
    int ReadThis(const CStringU& rsPath, const CStringU& rsFormat);

    /// Writes this store to a params file. A file that is there stays whole if that fails. In the
    /// values of devices NaN becomes 123456789.0, in this store too, although it is constant.
    /// @param rsPath, rsFormat as ReadThis. A store with any class can't be written as XML
    /// @throws CParamsFileError "Params file open failed!" if the file can't be opened,
    ///         "Params file WriteThis() operation failed!" where it can't be written; another
    ///         exception's own text, such as that of the memory's end
    void WriteThis(const CStringU& rsPath, const CStringU& rsFormat) const;
};
