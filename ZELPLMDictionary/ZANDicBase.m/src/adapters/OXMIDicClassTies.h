/// Ties of classes and extensions.
#ifndef OXMI_DIC_CLASS_TIES_H
#define OXMI_DIC_CLASS_TIES_H

#include "OXMIDicClass.h"
#include "OXMIDicElementTies.h"
#include "OXMIDicExtension.h"

/// Forwards OXMIDicClass.
template <class Impl, class Base>
class OXMIDicClassLayer : public Base {
public:
    HRESULT Create(const ZELString* name, const ZELDbBinary* uuid, OXMDicTYPE type,
                   OXMIDicElement** attribute) override {
        return this->forward([&](Impl& impl) { return impl.Create(name, uuid, type, attribute); });
    }
    HRESULT Create(const ZELString* name, OXMDicTYPE type, OXMIDicElement** attribute) override {
        return this->forward([&](Impl& impl) { return impl.Create(name, type, attribute); });
    }
    HRESULT CreateSimple(const ZELString* name, const ZELDbBinary* uuid, OXMIDicSimple** simple) override {
        return this->forward([&](Impl& impl) { return impl.CreateSimple(name, uuid, simple); });
    }
    HRESULT CreateSimple(const ZELString* name, OXMIDicSimple** simple) override {
        return this->forward([&](Impl& impl) { return impl.CreateSimple(name, simple); });
    }
    HRESULT CreateRelationship(const ZELString* name, const ZELDbBinary* uuid,
                               OXMIDicRelationship** relationship) override {
        return this->forward([&](Impl& impl) { return impl.CreateRelationship(name, uuid, relationship); });
    }
    HRESULT CreateRelationship(const ZELString* name, OXMIDicRelationship** relationship) override {
        return this->forward([&](Impl& impl) { return impl.CreateRelationship(name, relationship); });
    }
    HRESULT CreateInverse(const ZELString* name, const ZELDbBinary* uuid, OXMIDicInverse** inverse) override {
        return this->forward([&](Impl& impl) { return impl.CreateInverse(name, uuid, inverse); });
    }
    HRESULT CreateInverse(const ZELString* name, OXMIDicInverse** inverse) override {
        return this->forward([&](Impl& impl) { return impl.CreateInverse(name, inverse); });
    }
    HRESULT CreateUnique(const ZELString* name, const ZELDbBinary* uuid, OXMIDicUnique** unique) override {
        return this->forward([&](Impl& impl) { return impl.CreateUnique(name, uuid, unique); });
    }
    HRESULT CreateUnique(const ZELString* name, OXMIDicUnique** unique) override {
        return this->forward([&](Impl& impl) { return impl.CreateUnique(name, unique); });
    }
    HRESULT CreateMethod(const ZELString* name, const ZELDbBinary* uuid, OXMIDicMethod** method) override {
        return this->forward([&](Impl& impl) { return impl.CreateMethod(name, uuid, method); });
    }
    HRESULT CreateMethod(const ZELString* name, OXMIDicMethod** method) override {
        return this->forward([&](Impl& impl) { return impl.CreateMethod(name, method); });
    }
    HRESULT CreateImplement(const ZELString* name, IUnknown** implement) override {
        return this->forward([&](Impl& impl) { return impl.CreateImplement(name, implement); });
    }
    HRESULT CreateSecurity(const ZELString* name, IUnknown** security) override {
        return this->forward([&](Impl& impl) { return impl.CreateSecurity(name, security); });
    }
    HRESULT RemoveElement(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemoveElement(name); });
    }
    HRESULT RemoveMethod(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemoveMethod(name); });
    }
    HRESULT RemoveUnique(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemoveUnique(name); });
    }
    HRESULT RemoveImplement(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemoveImplement(name); });
    }
    HRESULT RemoveSecurity(const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RemoveSecurity(name); });
    }
    HRESULT AddCommand(const OXMIDicCommand* command) override {
        return this->forward([&](Impl& impl) { return impl.AddCommand(command); });
    }
    HRESULT RemoveCommand(const OXMIDicCommand* command) override {
        return this->forward([&](Impl& impl) { return impl.RemoveCommand(command); });
    }
    HRESULT GetCommands(ZELListPtrIUnknown* commands) override {
        return this->forward_List(commands, [&](Impl& impl) { return impl.GetCommands(commands); });
    }
    HRESULT AddInterface(const OXMIDicInterface* interface) override {
        return this->forward([&](Impl& impl) { return impl.AddInterface(interface); });
    }
    HRESULT RemoveInterface(const OXMIDicInterface* interface) override {
        return this->forward([&](Impl& impl) { return impl.RemoveInterface(interface); });
    }
    HRESULT GetInterfaces(ZELListPtrIUnknown* interfaces) override {
        return this->forward_List(interfaces, [&](Impl& impl) { return impl.GetInterfaces(interfaces); });
    }
    HRESULT GetClassImplements(ZELListPtrIUnknown* implements) override {
        return this->forward_List(implements,
                                  [&](Impl& impl) { return impl.GetClassImplements(implements); });
    }
    HRESULT GetAllImplements(ZELListPtrIUnknown* implements) override {
        return this->forward_List(implements, [&](Impl& impl) { return impl.GetAllImplements(implements); });
    }
    HRESULT GetClassSecurities(ZELListPtrIUnknown* securities) override {
        return this->forward_List(securities,
                                  [&](Impl& impl) { return impl.GetClassSecurities(securities); });
    }
    HRESULT GetAllSecurities(ZELListPtrIUnknown* securities) override {
        return this->forward_List(securities, [&](Impl& impl) { return impl.GetAllSecurities(securities); });
    }
    HRESULT Inherited(OXMIDicElement* element, unsigned char* inherited) override {
        return this->forward([&](Impl& impl) { return impl.Inherited(element, inherited); });
    }
    HRESULT SetSuperClass(const OXMIDicClass* superClass) override {
        return this->forward([&](Impl& impl) { return impl.SetSuperClass(superClass); });
    }
    HRESULT GetSuperClass(OXMIDicClass** superClass) override {
        return this->forward([&](Impl& impl) { return impl.GetSuperClass(superClass); });
    }
    HRESULT GetSuperClasses(ZELListPtrIUnknown* superClasses) override {
        return this->forward_List(superClasses,
                                  [&](Impl& impl) { return impl.GetSuperClasses(superClasses); });
    }
    HRESULT GetSubClasses(ZELListPtrIUnknown* subClasses) override {
        return this->forward_List(subClasses, [&](Impl& impl) { return impl.GetSubClasses(subClasses); });
    }
    HRESULT GetSuperName(ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.GetSuperName(name); });
    }
    HRESULT SetSuperInterface(const OXMIDicInterface* superInterface) override {
        return this->forward([&](Impl& impl) { return impl.SetSuperInterface(superInterface); });
    }
    HRESULT GetSuperInterface(OXMIDicInterface** superInterface) override {
        return this->forward([&](Impl& impl) { return impl.GetSuperInterface(superInterface); });
    }
    HRESULT GetSuperInterfaces(ZELListPtrIUnknown* superInterfaces) override {
        return this->forward_List(superInterfaces,
                                  [&](Impl& impl) { return impl.GetSuperInterfaces(superInterfaces); });
    }
    HRESULT GetClassElements(ZELListPtrIUnknown* attributes) override {
        return this->forward_List(attributes, [&](Impl& impl) { return impl.GetClassElements(attributes); });
    }
    HRESULT GetClassElement(const ZELString* name, OXMIDicElement** attribute) override {
        return this->forward([&](Impl& impl) { return impl.GetClassElement(name, attribute); });
    }
    HRESULT GetElement(const ZELString* name, OXMIDicElement** attribute) override {
        return this->forward([&](Impl& impl) { return impl.GetElement(name, attribute); });
    }
    HRESULT GetAllElements(ZELListPtrIUnknown* attributes) override {
        return this->forward_List(attributes, [&](Impl& impl) { return impl.GetAllElements(attributes); });
    }
    HRESULT GetInjectivesPointingOnMe(ZELListPtrIUnknown& relationships) override {
        return this->forward_List(&relationships,
                                  [&](Impl& impl) { return impl.GetInjectivesPointingOnMe(relationships); });
    }
    HRESULT SetPersistent(unsigned char persistent) override {
        return this->forward([&](Impl& impl) { return impl.SetPersistent(persistent); });
    }
    HRESULT GetPersistent(unsigned char* persistent) override {
        return this->forward([&](Impl& impl) { return impl.GetPersistent(persistent); });
    }
    HRESULT SetAbstract(unsigned char abstract) override {
        return this->forward([&](Impl& impl) { return impl.SetAbstract(abstract); });
    }
    HRESULT GetAbstract(unsigned char* abstract) override {
        return this->forward([&](Impl& impl) { return impl.GetAbstract(abstract); });
    }
    HRESULT SetInstance(unsigned char instance) override {
        return this->forward([&](Impl& impl) { return impl.SetInstance(instance); });
    }
    HRESULT GetInstance(unsigned char* instance) override {
        return this->forward([&](Impl& impl) { return impl.GetInstance(instance); });
    }
    HRESULT SetExtensible(unsigned char extensible) override {
        return this->forward([&](Impl& impl) { return impl.SetExtensible(extensible); });
    }
    HRESULT GetExtensible(unsigned char* extensible) override {
        return this->forward([&](Impl& impl) { return impl.GetExtensible(extensible); });
    }
    HRESULT SetKVADerivable(int derivable) override {
        return this->forward([&](Impl& impl) { return impl.SetKVADerivable(derivable); });
    }
    HRESULT GetKVADerivable(int* derivable) override {
        return this->forward([&](Impl& impl) { return impl.GetKVADerivable(derivable); });
    }
    HRESULT SetLateType(const ZELString* lateType) override {
        return this->forward([&](Impl& impl) { return impl.SetLateType(lateType); });
    }
    HRESULT GetLateType(ZELString* lateType) override {
        return this->forward([&](Impl& impl) { return impl.GetLateType(lateType); });
    }
    HRESULT SetApplicationName(const ZELUnicodeString* name) override {
        return this->forward([&](Impl& impl) { return impl.SetApplicationName(name); });
    }
    HRESULT GetApplicationName(ZELUnicodeString* name) override {
        return this->forward([&](Impl& impl) { return impl.GetApplicationName(name); });
    }
    HRESULT SetReference(const OXMIDicClass* reference) override {
        return this->forward([&](Impl& impl) { return impl.SetReference(reference); });
    }
    HRESULT GetReference(OXMIDicClass** reference) override {
        return this->forward([&](Impl& impl) { return impl.GetReference(reference); });
    }
    HRESULT GetUnique(const ZELString* name, OXMIDicUnique** unique) override {
        return this->forward([&](Impl& impl) { return impl.GetUnique(name, unique); });
    }
    HRESULT GetUniques(ZELListPtrIUnknown* uniques) override {
        return this->forward_List(uniques, [&](Impl& impl) { return impl.GetUniques(uniques); });
    }
    HRESULT GetMethod(const ZELString* name, OXMIDicMethod** method) override {
        return this->forward([&](Impl& impl) { return impl.GetMethod(name, method); });
    }
    HRESULT GetMethods(ZELListPtrIUnknown* methods) override {
        return this->forward_List(methods, [&](Impl& impl) { return impl.GetMethods(methods); });
    }
    HRESULT GetClassMethod(const ZELString* name, OXMIDicMethod** method) override {
        return this->forward([&](Impl& impl) { return impl.GetClassMethod(name, method); });
    }
    HRESULT GetAllMethods(ZELListPtrIUnknown* methods) override {
        return this->forward_List(methods, [&](Impl& impl) { return impl.GetAllMethods(methods); });
    }
    HRESULT GetAttBlock(const ZELString* name, OXMIDicAttributeBlock** block) override {
        return this->forward([&](Impl& impl) { return impl.GetAttBlock(name, block); });
    }
    HRESULT GetAttBlocks(ZELListPtrIUnknown* blocks) override {
        return this->forward_List(blocks, [&](Impl& impl) { return impl.GetAttBlocks(blocks); });
    }
    HRESULT GetAttBlockForAtt(const ZELString* attributeName, OXMIDicAttributeBlock** block) override {
        return this->forward([&](Impl& impl) { return impl.GetAttBlockForAtt(attributeName, block); });
    }
    HRESULT GetCBlockForAtt(const ZELString* attributeName, int create,
                            OXMIDicAttributeBlock** block) override {
        return this->forward([&](Impl& impl) { return impl.GetCBlockForAtt(attributeName, create, block); });
    }
    HRESULT HasAttBlocks(unsigned char* hasBlocks) override {
        return this->forward([&](Impl& impl) { return impl.HasAttBlocks(hasBlocks); });
    }
    HRESULT GetAllAttributeBlockList(ZELListPtrIUnknown* blocks) override {
        return this->forward_List(blocks, [&](Impl& impl) { return impl.GetAllAttributeBlockList(blocks); });
    }
    HRESULT RegisterBlockByName(OXMIDicAttributeBlock* block, const ZELString* name) override {
        return this->forward([&](Impl& impl) { return impl.RegisterBlockByName(block, name); });
    }
    HRESULT GetClassKVADerivable(int* derivable) override {
        return this->forward([&](Impl& impl) { return impl.GetClassKVADerivable(derivable); });
    }
    HRESULT GetClassExtensible(unsigned char* extensible) override {
        return this->forward([&](Impl& impl) { return impl.GetClassExtensible(extensible); });
    }
    HRESULT GetClassAttBlocks(ZELListPtrIUnknown* blocks) override {
        return this->forward_List(blocks, [&](Impl& impl) { return impl.GetClassAttBlocks(blocks); });
    }
};

/// Forwards OXMIDicExtension.
template <class Impl, class Base>
class OXMIDicExtensionLayer : public Base {
public:
    HRESULT AddScope(const OXMIDicClass* scope) override {
        return this->forward([&](Impl& impl) { return impl.AddScope(scope); });
    }
    HRESULT RemoveScope(const OXMIDicClass* scope) override {
        return this->forward([&](Impl& impl) { return impl.RemoveScope(scope); });
    }
    HRESULT GetScopes(ZELListPtrIUnknown* scopes) override {
        return this->forward_List(scopes, [&](Impl& impl) { return impl.GetScopes(scopes); });
    }
};

/// What the ties of all interfaces that derive from OXMIDicClass stand on.
template <class Interface, class Impl>
using OXMIDicClassBase = OXMIDicClassLayer<Impl, OXMIDicElementBase<Interface, Impl>>;

template <class Impl>
using OXMIDicClassTie = OXMIDicClassBase<OXMIDicClass, Impl>;

template <class Impl>
using OXMIDicExtensionTie = OXMIDicExtensionLayer<Impl, OXMIDicClassBase<OXMIDicExtension, Impl>>;

#endif
