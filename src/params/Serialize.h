#pragma once

#include "params/CircuitParams.h"

#include <boost/serialization/map.hpp>
#include <boost/serialization/nvp.hpp>
#include <boost/serialization/set.hpp>
#include <boost/serialization/string.hpp>
#include <boost/serialization/utility.hpp>
#include <boost/serialization/variant.hpp>
#include <boost/serialization/vector.hpp>
#include <boost/variant/get.hpp>

#include <string>

// How the classes of the store stand in an archive: one `serialize` per class, which reads and
// writes, for every kind of archive. The names are those of the XML archive's elements.

/// The number that stands in a file for NaN, where NaN is kept out of it.
inline constexpr double kNanInFile = 123456789.0;

/// Puts kNanInFile in the place of a value that is any NaN.
void gHideNan(TParamValue& rValue);
/// Puts kUninitializedParamValue in the place of a value that is exactly kNanInFile.
void gShowNan(TParamValue& rValue);
/// gHideNan for all values.
void gHideNan(TParamValues& rValues);
/// gShowNan for all values.
void gShowNan(TParamValues& rValues);

/// A text: its bytes without the marker.
template <class TArchive>
void serialize(TArchive& rArchive, CStringU& rsText, unsigned /*nVersion*/)
{
    std::string s;
    if constexpr (TArchive::is_saving::value) {
        s = rsText.Text();
    }
    rArchive& boost::serialization::make_nvp("s", s);
    if constexpr (TArchive::is_loading::value) {
        rsText.Assign(s, TTextKind::Utf8IfNeeded);
    }
}

/// The value of a definition, by hand and not as a variant, so that it has no id.
template <class TArchive, class T>
void gSerializeAs(TArchive& rArchive, const char* pName, TParamValue& rValue)
{
    T value{};
    if constexpr (TArchive::is_saving::value) {
        value = boost::get<T>(rValue);
    }
    rArchive& boost::serialization::make_nvp(pName, value);
    if constexpr (TArchive::is_loading::value) {
        rValue = value;
    }
}

/// The index of the alternative of a definition's value, and the value.
template <class TArchive> void gSerializeValue(TArchive& rArchive, TParamValue& rValue)
{
    int nWhich = rValue.which();
    rArchive& boost::serialization::make_nvp("nWhich", nWhich);
    switch (nWhich) {
    case TParamKind::Bool:
        gSerializeAs<TArchive, bool>(rArchive, "bValue", rValue);
        break;
    case TParamKind::Int:
        gSerializeAs<TArchive, int>(rArchive, "nValue", rValue);
        break;
    case TParamKind::Double:
        gSerializeAs<TArchive, double>(rArchive, "dValue", rValue);
        break;
    default: // kept: any other index reads a text
        gSerializeAs<TArchive, CStringU>(rArchive, "sValue", rValue);
        break;
    }
}

/// A definition. The object that is saved doesn't change.
template <class TArchive> void serialize(TArchive& rArchive, TParamDef& rDef, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("msName", rDef.msName);
    rArchive& make_nvp("mIsSet", rDef.mIsSet);
    rArchive& make_nvp("msUnits", rDef.msUnits);
    rArchive& make_nvp("msDescription", rDef.msDescription);
    rArchive& make_nvp("mAliases", rDef.mAliases);
    if constexpr (TArchive::is_saving::value) {
        TParamValue value = rDef.mValue;
        gHideNan(value);
        gSerializeValue(rArchive, value);
    } else {
        gSerializeValue(rArchive, rDef.mValue);
        gShowNan(rDef.mValue);
    }
}

/// The definitions of a class. Their name is no name of an XML element, and the XML archive refuses
/// it; that is meant.
template <class TArchive>
void serialize(TArchive& rArchive, TParamDefs& rDefs, unsigned /*nVersion*/)
{
    rArchive& boost::serialization::make_nvp("static_cast<std::vector<TParamDef>&>(*this)",
                                             static_cast<std::vector<TParamDef>&>(rDefs));
}

/// The identity of a class.
template <class TArchive>
void serialize(TArchive& rArchive, TModelClassHeader& rHeader, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("msName", rHeader.msName);
    rArchive& make_nvp("msType", rHeader.msType);
    rArchive& make_nvp("mnLevel", rHeader.mnLevel);
    rArchive& make_nvp("mdVersion", rHeader.mdVersion);
    rArchive& make_nvp("msDescription", rHeader.msDescription);
}

/// A class.
template <class TArchive>
void serialize(TArchive& rArchive, TModelClassDef& rClass, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("mHeader", rClass.mHeader);
    rArchive& make_nvp("mModelParamDefs", rClass.mModelParamDefs);
    rArchive& make_nvp("mDeviceParamDefs", rClass.mDeviceParamDefs);
    rArchive& make_nvp("mStateParamDefs", rClass.mStateParamDefs);
}

/// The identity of a model.
template <class TArchive>
void serialize(TArchive& rArchive, TModelHeader& rHeader, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("mnSubckt", rHeader.mnSubckt);
    rArchive& make_nvp("msName", rHeader.msName);
    rArchive& make_nvp("msClass", rHeader.msClass);
    rArchive& make_nvp("msType", rHeader.msType);
}

/// The identity of a device.
template <class TArchive>
void serialize(TArchive& rArchive, TDeviceHeader& rHeader, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("mnSubckt", rHeader.mnSubckt);
    rArchive& make_nvp("msName", rHeader.msName);
}

/// A pointer into the store. An archive takes it as a pointer to what isn't constant.
template <class TArchive, class T>
void gSerializePointer(TArchive& rArchive, const char* pName, const T*& rpObject)
{
    T* pObject = const_cast<T*>(rpObject);
    rArchive& boost::serialization::make_nvp(pName, pObject);
    if constexpr (TArchive::is_loading::value) {
        rpObject = pObject;
    }
}

/// A model. Its values stand in the file as they are, NaN too; that is meant.
template <class TArchive>
void serialize(TArchive& rArchive, TModelData& rModel, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("mModelHeader", rModel.mModelHeader);
    gSerializePointer(rArchive, "mpModelClassDef", rModel.mpModelClassDef);
    rArchive& make_nvp("mModelParamValues", rModel.mModelParamValues);
}

/// A device. Saving takes NaN out of the values of the object that is saved; that is meant.
template <class TArchive>
void serialize(TArchive& rArchive, TDeviceData& rDevice, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    if constexpr (TArchive::is_saving::value) {
        gHideNan(rDevice.mDeviceParamValues);
        gHideNan(rDevice.mStateParamValues);
    }
    rArchive& make_nvp("mDeviceHeader", rDevice.mDeviceHeader);
    rArchive& make_nvp("mModelHeader", rDevice.mModelHeader);
    gSerializePointer(rArchive, "mpModelClassDef", rDevice.mpModelClassDef);
    gSerializePointer(rArchive, "mpModelData", rDevice.mpModelData);
    rArchive& make_nvp("mDeviceParamValues", rDevice.mDeviceParamValues);
    rArchive& make_nvp("mStateParamValues", rDevice.mStateParamValues);
    if constexpr (TArchive::is_loading::value) {
        gShowNan(rDevice.mDeviceParamValues);
        gShowNan(rDevice.mStateParamValues);
    }
}

/// The table of subcircuits.
template <class TArchive>
void serialize(TArchive& rArchive, TBidirectionalStringToIntMap& rTable, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("mIndex", rTable.mIndex);
    rArchive& make_nvp("mTable", rTable.mTable);
}

/// The store.
template <class TArchive>
void serialize(TArchive& rArchive, TCircuitParams& rStore, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("mSubcktTable", rStore.mSubcktTable);
    rArchive& make_nvp("mModelClasses", rStore.mModelClasses);
    rArchive& make_nvp("mOpticalClasses", rStore.mOpticalClasses);
    rArchive& make_nvp("mCircuitModelDatasets", rStore.mCircuitModelDatasets);
    rArchive& make_nvp("mCircuitDeviceDatasets", rStore.mCircuitDeviceDatasets);
}
