#pragma once

#include <memory>
#include <string_view>

class CRuntimeClass;

/// Root of all classes that can be asked for their kind and created by name.
class CObject
{
public:
    virtual ~CObject() = default;

    /// True when this object is of `rClass` or of a class derived from it.
    bool IsKindOf(const CRuntimeClass& rClass) const;
};

/// A class that is known at run time by its name.
class CRuntimeClass
{
public:
    using TIsInstance = bool (*)(const CObject& rObject);
    using TCreate = std::unique_ptr<CObject> (*)();

    /// Registers the class. `sName` lives as long as the object; `pCreate` is null for an abstract
    /// class.
    CRuntimeClass(std::string_view sName, TIsInstance pIsInstance, TCreate pCreate);
    /// The class is known no more: its library is unloaded.
    ~CRuntimeClass();
    CRuntimeClass(const CRuntimeClass&) = delete;
    CRuntimeClass& operator=(const CRuntimeClass&) = delete;

    std::string_view GetName() const { return msName; }
    bool IsInstance(const CObject& rObject) const { return mpIsInstance(rObject); }

    /// A new object of the class, or null when the class is abstract.
    std::unique_ptr<CObject> CreateObject() const { return mpCreate ? mpCreate() : nullptr; }

    /// The registered class of exactly this name, or null.
    static const CRuntimeClass* FromName(std::string_view sName);

private:
    std::string_view msName;
    TIsInstance mpIsInstance;
    TCreate mpCreate;
    CRuntimeClass* mpNext; ///< registered before this one
};

/// The run-time class of `TClass`, registered by the first call.
/// The source of `TClass` instantiates it (RuntimeClassDefinition.h); whoever only names the class
/// needs no more than its forward declaration.
template <class TClass> const CRuntimeClass& gRuntimeClass();

/// The name of the object's own class, registered or not.
std::string_view gClassName(const CObject& rObject);
