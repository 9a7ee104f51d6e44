/// Tie of classes.
#ifndef OXMI_DIC_CLASS_TIES_H
#define OXMI_DIC_CLASS_TIES_H

#include "OXMIDicClass.h"
#include "OXMIDicElementTies.h"

/// Forwards OXMIDicClass.
template <class Impl, class Base>
class OXMIDicClassLayer : public Base {
public:
    HRESULT Create(const ZELString* name, const ZELDbBinary* uuid, OXMDicTYPE type,
                   OXMIDicElement** attribute) override {
        return this->impl().Create(name, uuid, type, attribute);
    }
    HRESULT Create(const ZELString* name, OXMDicTYPE type, OXMIDicElement** attribute) override {
        return this->impl().Create(name, type, attribute);
    }
    HRESULT CreateSimple(const ZELString* name, const ZELDbBinary* uuid, OXMIDicSimple** simple) override {
        return this->impl().CreateSimple(name, uuid, simple);
    }
    HRESULT CreateSimple(const ZELString* name, OXMIDicSimple** simple) override {
        return this->impl().CreateSimple(name, simple);
    }
    HRESULT CreateRelationship(const ZELString* name, const ZELDbBinary* uuid,
                               OXMIDicRelationship** relationship) override {
        return this->impl().CreateRelationship(name, uuid, relationship);
    }
    HRESULT CreateRelationship(const ZELString* name, OXMIDicRelationship** relationship) override {
        return this->impl().CreateRelationship(name, relationship);
    }
    HRESULT CreateInverse(const ZELString* name, const ZELDbBinary* uuid, OXMIDicInverse** inverse) override {
        return this->impl().CreateInverse(name, uuid, inverse);
    }
    HRESULT CreateInverse(const ZELString* name, OXMIDicInverse** inverse) override {
        return this->impl().CreateInverse(name, inverse);
    }
    HRESULT CreateUnique(const ZELString* name, const ZELDbBinary* uuid, OXMIDicUnique** unique) override {
        return this->impl().CreateUnique(name, uuid, unique);
    }
    HRESULT CreateUnique(const ZELString* name, OXMIDicUnique** unique) override {
        return this->impl().CreateUnique(name, unique);
    }
    HRESULT CreateMethod(const ZELString* name, const ZELDbBinary* uuid, OXMIDicMethod** method) override {
        return this->impl().CreateMethod(name, uuid, method);
    }
    HRESULT CreateMethod(const ZELString* name, OXMIDicMethod** method) override {
        return this->impl().CreateMethod(name, method);
    }
    HRESULT CreateImplement(const ZELString* name, IUnknown** implement) override {
        return this->impl().CreateImplement(name, implement);
    }
    HRESULT CreateSecurity(const ZELString* name, IUnknown** security) override {
        return this->impl().CreateSecurity(name, security);
    }
    HRESULT RemoveElement(const ZELString* name) override { return this->impl().RemoveElement(name); }
    HRESULT RemoveMethod(const ZELString* name) override { return this->impl().RemoveMethod(name); }
    HRESULT RemoveUnique(const ZELString* name) override { return this->impl().RemoveUnique(name); }
    HRESULT RemoveImplement(const ZELString* name) override { return this->impl().RemoveImplement(name); }
    HRESULT RemoveSecurity(const ZELString* name) override { return this->impl().RemoveSecurity(name); }
    HRESULT AddCommand(const OXMIDicCommand* command) override { return this->impl().AddCommand(command); }
    HRESULT RemoveCommand(const OXMIDicCommand* command) override {
        return this->impl().RemoveCommand(command);
    }
    HRESULT GetCommands(ZELListPtrIUnknown* commands) override { return this->impl().GetCommands(commands); }
    HRESULT AddInterface(const OXMIDicInterface* interface) override {
        return this->impl().AddInterface(interface);
    }
    HRESULT RemoveInterface(const OXMIDicInterface* interface) override {
        return this->impl().RemoveInterface(interface);
    }
    HRESULT GetInterfaces(ZELListPtrIUnknown* interfaces) override {
        return this->impl().GetInterfaces(interfaces);
    }
    HRESULT GetClassImplements(ZELListPtrIUnknown* implements) override {
        return this->impl().GetClassImplements(implements);
    }
    HRESULT GetAllImplements(ZELListPtrIUnknown* implements) override {
        return this->impl().GetAllImplements(implements);
    }
    HRESULT GetClassSecurities(ZELListPtrIUnknown* securities) override {
        return this->impl().GetClassSecurities(securities);
    }
    HRESULT GetAllSecurities(ZELListPtrIUnknown* securities) override {
        return this->impl().GetAllSecurities(securities);
    }
    HRESULT Inherited(OXMIDicElement* element, unsigned char* inherited) override {
        return this->impl().Inherited(element, inherited);
    }
    HRESULT SetSuperClass(const OXMIDicClass* superClass) override {
        return this->impl().SetSuperClass(superClass);
    }
    HRESULT GetSuperClass(OXMIDicClass** superClass) override {
        return this->impl().GetSuperClass(superClass);
    }
    HRESULT GetSuperClasses(ZELListPtrIUnknown* superClasses) override {
        return this->impl().GetSuperClasses(superClasses);
    }
    HRESULT GetSubClasses(ZELListPtrIUnknown* subClasses) override {
        return this->impl().GetSubClasses(subClasses);
    }
    HRESULT GetSuperName(ZELString* name) override { return this->impl().GetSuperName(name); }
    HRESULT SetSuperInterface(const OXMIDicInterface* superInterface) override {
        return this->impl().SetSuperInterface(superInterface);
    }
    HRESULT GetSuperInterface(OXMIDicInterface** superInterface) override {
        return this->impl().GetSuperInterface(superInterface);
    }
    HRESULT GetSuperInterfaces(ZELListPtrIUnknown* superInterfaces) override {
        return this->impl().GetSuperInterfaces(superInterfaces);
    }
    HRESULT GetClassElements(ZELListPtrIUnknown* attributes) override {
        return this->impl().GetClassElements(attributes);
    }
    HRESULT GetClassElement(const ZELString* name, OXMIDicElement** attribute) override {
        return this->impl().GetClassElement(name, attribute);
    }
    HRESULT GetElement(const ZELString* name, OXMIDicElement** attribute) override {
        return this->impl().GetElement(name, attribute);
    }
    HRESULT GetAllElements(ZELListPtrIUnknown* attributes) override {
        return this->impl().GetAllElements(attributes);
    }
    HRESULT GetInjectivesPointingOnMe(ZELListPtrIUnknown& relationships) override {
        return this->impl().GetInjectivesPointingOnMe(relationships);
    }
    HRESULT SetPersistent(unsigned char persistent) override {
        return this->impl().SetPersistent(persistent);
    }
    HRESULT GetPersistent(unsigned char* persistent) override {
        return this->impl().GetPersistent(persistent);
    }
    HRESULT SetAbstract(unsigned char abstract) override { return this->impl().SetAbstract(abstract); }
    HRESULT GetAbstract(unsigned char* abstract) override { return this->impl().GetAbstract(abstract); }
    HRESULT SetInstance(unsigned char instance) override { return this->impl().SetInstance(instance); }
    HRESULT GetInstance(unsigned char* instance) override { return this->impl().GetInstance(instance); }
    HRESULT SetExtensible(unsigned char extensible) override {
        return this->impl().SetExtensible(extensible);
    }
    HRESULT GetExtensible(unsigned char* extensible) override {
        return this->impl().GetExtensible(extensible);
    }
    HRESULT SetKVADerivable(int derivable) override { return this->impl().SetKVADerivable(derivable); }
    HRESULT GetKVADerivable(int* derivable) override { return this->impl().GetKVADerivable(derivable); }
    HRESULT SetLateType(const ZELString* lateType) override { return this->impl().SetLateType(lateType); }
    HRESULT GetLateType(ZELString* lateType) override { return this->impl().GetLateType(lateType); }
    HRESULT SetApplicationName(const ZELUnicodeString* name) override {
        return this->impl().SetApplicationName(name);
    }
    HRESULT GetApplicationName(ZELUnicodeString* name) override {
        return this->impl().GetApplicationName(name);
    }
    HRESULT SetReference(const OXMIDicClass* reference) override {
        return this->impl().SetReference(reference);
    }
    HRESULT GetReference(OXMIDicClass** reference) override { return this->impl().GetReference(reference); }
    HRESULT GetUnique(const ZELString* name, OXMIDicUnique** unique) override {
        return this->impl().GetUnique(name, unique);
    }
    HRESULT GetUniques(ZELListPtrIUnknown* uniques) override { return this->impl().GetUniques(uniques); }
    HRESULT GetMethod(const ZELString* name, OXMIDicMethod** method) override {
        return this->impl().GetMethod(name, method);
    }
    HRESULT GetMethods(ZELListPtrIUnknown* methods) override { return this->impl().GetMethods(methods); }
    HRESULT GetClassMethod(const ZELString* name, OXMIDicMethod** method) override {
        return this->impl().GetClassMethod(name, method);
    }
    HRESULT GetAllMethods(ZELListPtrIUnknown* methods) override {
        return this->impl().GetAllMethods(methods);
    }
    HRESULT GetAttBlock(const ZELString* name, OXMIDicAttributeBlock** block) override {
        return this->impl().GetAttBlock(name, block);
    }
    HRESULT GetAttBlocks(ZELListPtrIUnknown* blocks) override { return this->impl().GetAttBlocks(blocks); }
    HRESULT GetAttBlockForAtt(const ZELString* attributeName, OXMIDicAttributeBlock** block) override {
        return this->impl().GetAttBlockForAtt(attributeName, block);
    }
    HRESULT GetCBlockForAtt(const ZELString* attributeName, int create,
                            OXMIDicAttributeBlock** block) override {
        return this->impl().GetCBlockForAtt(attributeName, create, block);
    }
    HRESULT HasAttBlocks(unsigned char* hasBlocks) override { return this->impl().HasAttBlocks(hasBlocks); }
    HRESULT GetAllAttributeBlockList(ZELListPtrIUnknown* blocks) override {
        return this->impl().GetAllAttributeBlockList(blocks);
    }
    HRESULT RegisterBlockByName(OXMIDicAttributeBlock* block, const ZELString* name) override {
        return this->impl().RegisterBlockByName(block, name);
    }
    HRESULT GetClassKVADerivable(int* derivable) override {
        return this->impl().GetClassKVADerivable(derivable);
    }
};

template <class Impl>
using OXMIDicClassTie = OXMIDicClassLayer<Impl, OXMIDicElementBase<OXMIDicClass, Impl>>;

#endif
