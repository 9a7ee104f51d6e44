#include "CallTable.h"

#include <tuple>
#include <utility>

#include "CallArguments.h"
#include "OXMIDicApp.h"
#include "OXMIDicAttribute.h"
#include "OXMIDicAttributeBlock.h"
#include "OXMIDicBOLink.h"
#include "OXMIDicBObject.h"
#include "OXMIDicCategory.h"
#include "OXMIDicClass.h"
#include "OXMIDicCommand.h"
#include "OXMIDicCommandParameter.h"
#include "OXMIDicElement.h"
#include "OXMIDicElementH.h"
#include "OXMIDicEnum.h"
#include "OXMIDicEnumerator.h"
#include "OXMIDicExtension.h"
#include "OXMIDicInterface.h"
#include "OXMIDicInverse.h"
#include "OXMIDicMethod.h"
#include "OXMIDicMgr.h"
#include "OXMIDicPackage.h"
#include "OXMIDicParameter.h"
#include "OXMIDicPrimitive.h"
#include "OXMIDicRBOClass.h"
#include "OXMIDicRBOComponent.h"
#include "OXMIDicRBOMapping.h"
#include "OXMIDicRBOPathExpression.h"
#include "OXMIDicRBORoot.h"
#include "OXMIDicRelationship.h"
#include "OXMIDicSimple.h"
#include "OXMIDicUnique.h"

namespace {

// How to name one operation of several that have its name.
template <class Owner, class... Parameters>
using Operation = HRESULT (Owner::*)(Parameters...);
template <class Owner, class Made>
using Identified = Operation<Owner, const ZELString*, const ZELDbBinary*, Made**>;
template <class Owner, class Made>
using Named = Operation<Owner, const ZELString*, Made**>;

/// \returns what the operation answered; S_OK for one that answers something else than a result.
template <class Owner, class Result, class... Parameters>
HRESULT Made(Owner& owner, Result (Owner::*operation)(Parameters...), Argument<Parameters>&... arguments) {
    if constexpr (std::is_same_v<Result, HRESULT>) {
        return (owner.*operation)(arguments.Get()...);
    } else {
        static_cast<void>((owner.*operation)(arguments.Get()...));
        return S_OK;
    }
}

/// \param isFactory whether it hands out what it made even when that could not be registered.
template <class Owner, class Result, class... Parameters>
void MakeCall(Caller& caller, Owner& owner, Result (Owner::*operation)(Parameters...), bool isFactory) {
    std::tuple<Argument<Parameters>...> arguments{
        (static_cast<void>(sizeof(Argument<Parameters>)), caller)...};
    std::apply(
        [&](auto&... argument) {
            const bool succeeded = Succeeded(Made(owner, operation, argument...));
            (argument.Settle(caller, succeeded || isFactory), ...);
        },
        arguments);
}

template <class Owner, class Result, class... Parameters>
constexpr ZELInterfaceId InterfaceOf(Result (Owner::*)(Parameters...)) {
    return Owner::ClassId();
}

template <class Owner, class Result, class... Parameters>
Owner& AsOwner(IUnknown& face, Result (Owner::*)(Parameters...)) {
    return static_cast<Owner&>(face);
}

template <auto Call>
constexpr std::string_view TextOf() {
    return __PRETTY_FUNCTION__;
}

template <auto Call>
constexpr bool IsFactory() {
    return TextOf<Call>().find("::Create") != std::string_view::npos;
}

template <auto Call>
constexpr CallRow Row() {
    return {TextOf<Call>(), InterfaceOf(Call), [](Caller& caller, IUnknown& face) {
                MakeCall(caller, AsOwner(face, Call), Call, IsFactory<Call>());
            }};
}

/// A getter that ends the process where the number that is stored is no word: one is stored first.
template <auto Setter, auto Word, auto Getter>
constexpr CallRow RowAfter() {
    return {TextOf<Getter>(), InterfaceOf(Getter), [](Caller& caller, IUnknown& face) {
                auto& owner = AsOwner(face, Getter);
                (owner.*Setter)(Word);
                MakeCall(caller, owner, Getter, false);
            }};
}

/// A call that callers do not make of some objects.
template <auto IsExcepted, auto Call>
constexpr CallRow RowUnless() {
    return {TextOf<Call>(), InterfaceOf(Call), [](Caller& caller, IUnknown& face) {
                if (!IsExcepted(face)) MakeCall(caller, AsOwner(face, Call), Call, IsFactory<Call>());
            }};
}

bool Answers(IUnknown& face, const ZELInterfaceId& id) {
    void* found = nullptr;
    if (Failed(face.QueryInterface(id, &found))) return false;
    static_cast<IUnknown*>(found)->Release();
    return true;
}

/// What callers construct belongs to the registry as long as that holds it: under a UUID that is taken nobody
/// would own it any more.
bool IsConstructedByCallers(IUnknown& face) {
    return Answers(face, IID_OXMIDicCommand) || Answers(face, IID_OXMIDicCommandParameter) ||
           Answers(face, IID_OXMIDicBObject) || Answers(face, IID_OXMIDicBOLink);
}

constexpr CallRow kRows[] = {
    // OXMIDicMgr
    Row<&OXMIDicMgr::Init>(),
    Row<&OXMIDicMgr::Save>(),
    Row<&OXMIDicMgr::SavePackageToDir>(),
    Row<&OXMIDicMgr::SavePackage>(),
    Row<&OXMIDicMgr::End>(),
    Row<&OXMIDicMgr::Create>(),
    Row<Operation<OXMIDicMgr, const char*, const ZELString*, OXMDicPERSISTENT, OXMDicCONTENT>(
        &OXMIDicMgr::LoadPackageFromDir)>(),
    Row<Operation<OXMIDicMgr, const char*, const ZELString*, OXMDicPERSISTENT>(
        &OXMIDicMgr::LoadPackageFromDir)>(),
    Row<Operation<OXMIDicMgr, const ZELString*, OXMDicPERSISTENT, OXMDicCONTENT>(&OXMIDicMgr::LoadPackage)>(),
    Row<Operation<OXMIDicMgr, const ZELString*, OXMDicPERSISTENT>(&OXMIDicMgr::LoadPackage)>(),
    Row<Operation<OXMIDicMgr, const ZELString*, ZELListPtrIUnknown*>(&OXMIDicMgr::GetPackages)>(),
    Row<Operation<OXMIDicMgr, ZELListPtrIUnknown*>(&OXMIDicMgr::GetPackages)>(),
    Row<&OXMIDicMgr::GetPackage>(),
    Row<Operation<OXMIDicMgr, const ZELString*, const ZELDbBinary*, const ZELString*, OXMIDicPackage**>(
        &OXMIDicMgr::CreatePackage)>(),
    Row<Named<OXMIDicMgr, OXMIDicPackage>(&OXMIDicMgr::CreatePackage)>(),
    Row<&OXMIDicMgr::RemovePackage>(),
    Row<&OXMIDicMgr::Reserved1>(),
    Row<&OXMIDicMgr::Reserved2>(),
    Row<&OXMIDicMgr::Reserved3>(),
    Row<&OXMIDicMgr::Reserved4>(),
    Row<&OXMIDicMgr::Reserved5>(),
    Row<&OXMIDicMgr::Reserved6>(),
    Row<&OXMIDicMgr::Reserved7>(),
    Row<&OXMIDicMgr::Reserved8>(),
    Row<&OXMIDicMgr::GetPrimitive>(),
    Row<&OXMIDicMgr::Reserved9>(),
    Row<&OXMIDicMgr::Reserved10>(),
    Row<&OXMIDicMgr::SetLoadingMode>(),
    Row<&OXMIDicMgr::GetLoadingMode>(),
    Row<&OXMIDicMgr::SaveExpress>(),
    Row<&OXMIDicMgr::SaveXml>(),
    Row<&OXMIDicMgr::LoadXml>(),
    Row<&OXMIDicMgr::Search>(),
    Row<&OXMIDicMgr::SearchByName>(),
    // OXMIDicApp
    Row<&OXMIDicApp::GetName>(),
    Row<&OXMIDicApp::SetName>(),
    Row<&OXMIDicApp::GetUuid>(),
    RowUnless<IsConstructedByCallers, &OXMIDicApp::SetUuid>(),
    Row<&OXMIDicApp::GenUuid>(),
    Row<&OXMIDicApp::GetType>(),
    Row<&OXMIDicApp::Dump>(),
    // OXMIDicElementH
    Row<&OXMIDicElementH::GetName>(),
    Row<&OXMIDicElementH::SetName>(),
    Row<&OXMIDicElementH::GetUuid>(),
    RowUnless<IsConstructedByCallers, &OXMIDicElementH::SetUuid>(),
    Row<&OXMIDicElementH::GenUuid>(),
    Row<&OXMIDicElementH::GetType>(),
    Row<&OXMIDicElementH::SetOtherAttribute>(),
    Row<&OXMIDicElementH::GetOtherAttribute>(),
    Row<&OXMIDicElementH::GetAllOtherAttributes>(),
    Row<&OXMIDicElementH::AddCategory>(),
    Row<&OXMIDicElementH::RemoveCategory>(),
    Row<&OXMIDicElementH::IsCategory>(),
    Row<&OXMIDicElementH::GetCategories>(),
    Row<&OXMIDicElementH::GetLostLinks>(),
    // OXMIDicElement
    Row<&OXMIDicElement::SetAlias>(),
    Row<&OXMIDicElement::SetExpositionLevel>(),
    Row<&OXMIDicElement::SetVisibility>(),
    Row<&OXMIDicElement::GetAlias>(),
    Row<&OXMIDicElement::GetExpositionLevel>(),
    Row<&OXMIDicElement::GetVisibility>(),
    Row<&OXMIDicElement::GetPackage>(),
    Row<&OXMIDicElement::GetPackageName>(),
    Row<&OXMIDicElement::BelongsTo>(),
    Row<&OXMIDicElement::GetSuperPackage>(),
    Row<&OXMIDicElement::FlushAll>(),
    // OXMIDicPackage
    Row<&OXMIDicPackage::SetAlias>(),
    Row<&OXMIDicPackage::GetAlias>(),
    Row<&OXMIDicPackage::SetExpositionLevel>(),
    Row<&OXMIDicPackage::GetExpositionLevel>(),
    Row<&OXMIDicPackage::SetDomain>(),
    Row<&OXMIDicPackage::GetDomain>(),
    Row<&OXMIDicPackage::AddUsedPackage>(),
    Row<&OXMIDicPackage::AddScopePackage>(),
    Row<&OXMIDicPackage::GetUsedPackages>(),
    Row<&OXMIDicPackage::GetScopePackages>(),
    Row<&OXMIDicPackage::GetElements>(),
    Row<&OXMIDicPackage::GetAllElements>(),
    Row<&OXMIDicPackage::GetClasses>(),
    Row<&OXMIDicPackage::GetElement>(),
    Row<&OXMIDicPackage::GetElementR>(),
    Row<&OXMIDicPackage::GetRBOClass>(),
    Row<&OXMIDicPackage::GetRBOMapping>(),
    Row<&OXMIDicPackage::AddCommand>(),
    Row<&OXMIDicPackage::RemoveCommand>(),
    Row<&OXMIDicPackage::GetCommands>(),
    Row<&OXMIDicPackage::RemoveElement>(),
    Row<&OXMIDicPackage::FlushAll>(),
    Row<&OXMIDicPackage::ComputeAttributeBlocks>(),
    Row<&OXMIDicPackage::GetVersion>(),
    Row<&OXMIDicPackage::SetVersion>(),
    Row<&OXMIDicPackage::GetInterfaces>(),
    Row<Identified<OXMIDicPackage, OXMIDicClass>(&OXMIDicPackage::CreateClass)>(),
    Row<Named<OXMIDicPackage, OXMIDicClass>(&OXMIDicPackage::CreateClass)>(),
    Row<Identified<OXMIDicPackage, OXMIDicEnum>(&OXMIDicPackage::CreateEnum)>(),
    Row<Named<OXMIDicPackage, OXMIDicEnum>(&OXMIDicPackage::CreateEnum)>(),
    Row<Identified<OXMIDicPackage, OXMIDicCategory>(&OXMIDicPackage::CreateCategory)>(),
    Row<Named<OXMIDicPackage, OXMIDicCategory>(&OXMIDicPackage::CreateCategory)>(),
    Row<Identified<OXMIDicPackage, OXMIDicExtension>(&OXMIDicPackage::CreateExtension)>(),
    Row<Named<OXMIDicPackage, OXMIDicExtension>(&OXMIDicPackage::CreateExtension)>(),
    Row<Identified<OXMIDicPackage, OXMIDicInterface>(&OXMIDicPackage::CreateInterface)>(),
    Row<Named<OXMIDicPackage, OXMIDicInterface>(&OXMIDicPackage::CreateInterface)>(),
    Row<Identified<OXMIDicPackage, OXMIDicRBOClass>(&OXMIDicPackage::CreateRBOClass)>(),
    Row<Named<OXMIDicPackage, OXMIDicRBOClass>(&OXMIDicPackage::CreateRBOClass)>(),
    Row<Identified<OXMIDicPackage, OXMIDicRBOMapping>(&OXMIDicPackage::CreateRBOMapping)>(),
    Row<Named<OXMIDicPackage, OXMIDicRBOMapping>(&OXMIDicPackage::CreateRBOMapping)>(),
    Row<&OXMIDicPackage::CreateAttributeBlock>(),
    Row<Identified<OXMIDicPackage, OXMIDicCommand>(&OXMIDicPackage::CreateCommand)>(),
    Row<Named<OXMIDicPackage, OXMIDicCommand>(&OXMIDicPackage::CreateCommand)>(),
    Row<Identified<OXMIDicPackage, OXMIDicBObject>(&OXMIDicPackage::CreateBObject)>(),
    Row<Named<OXMIDicPackage, OXMIDicBObject>(&OXMIDicPackage::CreateBObject)>(),
    // OXMIDicClass
    Row<Operation<OXMIDicClass, const ZELString*, const ZELDbBinary*, OXMDicTYPE, OXMIDicElement**>(
        &OXMIDicClass::Create)>(),
    Row<Operation<OXMIDicClass, const ZELString*, OXMDicTYPE, OXMIDicElement**>(&OXMIDicClass::Create)>(),
    Row<Identified<OXMIDicClass, OXMIDicSimple>(&OXMIDicClass::CreateSimple)>(),
    Row<Named<OXMIDicClass, OXMIDicSimple>(&OXMIDicClass::CreateSimple)>(),
    Row<Identified<OXMIDicClass, OXMIDicRelationship>(&OXMIDicClass::CreateRelationship)>(),
    Row<Named<OXMIDicClass, OXMIDicRelationship>(&OXMIDicClass::CreateRelationship)>(),
    Row<Identified<OXMIDicClass, OXMIDicInverse>(&OXMIDicClass::CreateInverse)>(),
    Row<Named<OXMIDicClass, OXMIDicInverse>(&OXMIDicClass::CreateInverse)>(),
    Row<Identified<OXMIDicClass, OXMIDicUnique>(&OXMIDicClass::CreateUnique)>(),
    Row<Named<OXMIDicClass, OXMIDicUnique>(&OXMIDicClass::CreateUnique)>(),
    Row<Identified<OXMIDicClass, OXMIDicMethod>(&OXMIDicClass::CreateMethod)>(),
    Row<Named<OXMIDicClass, OXMIDicMethod>(&OXMIDicClass::CreateMethod)>(),
    Row<&OXMIDicClass::CreateImplement>(),
    Row<&OXMIDicClass::CreateSecurity>(),
    Row<&OXMIDicClass::RemoveElement>(),
    Row<&OXMIDicClass::RemoveMethod>(),
    Row<&OXMIDicClass::RemoveUnique>(),
    Row<&OXMIDicClass::RemoveImplement>(),
    Row<&OXMIDicClass::RemoveSecurity>(),
    Row<&OXMIDicClass::AddCommand>(),
    Row<&OXMIDicClass::RemoveCommand>(),
    Row<&OXMIDicClass::GetCommands>(),
    Row<&OXMIDicClass::AddInterface>(),
    Row<&OXMIDicClass::RemoveInterface>(),
    Row<&OXMIDicClass::GetInterfaces>(),
    Row<&OXMIDicClass::GetClassImplements>(),
    Row<&OXMIDicClass::GetAllImplements>(),
    Row<&OXMIDicClass::GetClassSecurities>(),
    Row<&OXMIDicClass::GetAllSecurities>(),
    Row<&OXMIDicClass::Inherited>(),
    Row<&OXMIDicClass::SetSuperClass>(),
    Row<&OXMIDicClass::GetSuperClass>(),
    Row<&OXMIDicClass::GetSuperClasses>(),
    Row<&OXMIDicClass::GetSubClasses>(),
    Row<&OXMIDicClass::GetSuperName>(),
    Row<&OXMIDicClass::SetSuperInterface>(),
    Row<&OXMIDicClass::GetSuperInterface>(),
    Row<&OXMIDicClass::GetSuperInterfaces>(),
    Row<&OXMIDicClass::GetClassElements>(),
    Row<&OXMIDicClass::GetClassElement>(),
    Row<&OXMIDicClass::GetElement>(),
    Row<&OXMIDicClass::GetAllElements>(),
    Row<&OXMIDicClass::GetInjectivesPointingOnMe>(),
    Row<&OXMIDicClass::SetPersistent>(),
    Row<&OXMIDicClass::GetPersistent>(),
    Row<&OXMIDicClass::SetAbstract>(),
    Row<&OXMIDicClass::GetAbstract>(),
    Row<&OXMIDicClass::SetInstance>(),
    Row<&OXMIDicClass::GetInstance>(),
    Row<&OXMIDicClass::SetExtensible>(),
    Row<&OXMIDicClass::GetExtensible>(),
    Row<&OXMIDicClass::SetKVADerivable>(),
    Row<&OXMIDicClass::GetKVADerivable>(),
    Row<&OXMIDicClass::SetLateType>(),
    Row<&OXMIDicClass::GetLateType>(),
    Row<&OXMIDicClass::SetApplicationName>(),
    Row<&OXMIDicClass::GetApplicationName>(),
    Row<&OXMIDicClass::SetReference>(),
    Row<&OXMIDicClass::GetReference>(),
    Row<&OXMIDicClass::GetUnique>(),
    Row<&OXMIDicClass::GetUniques>(),
    Row<&OXMIDicClass::GetMethod>(),
    Row<&OXMIDicClass::GetMethods>(),
    Row<&OXMIDicClass::GetClassMethod>(),
    Row<&OXMIDicClass::GetAllMethods>(),
    Row<&OXMIDicClass::GetAttBlock>(),
    Row<&OXMIDicClass::GetAttBlocks>(),
    Row<&OXMIDicClass::GetAttBlockForAtt>(),
    Row<&OXMIDicClass::GetCBlockForAtt>(),
    Row<&OXMIDicClass::HasAttBlocks>(),
    Row<&OXMIDicClass::GetAllAttributeBlockList>(),
    Row<&OXMIDicClass::RegisterBlockByName>(),
    Row<&OXMIDicClass::GetClassKVADerivable>(),
    Row<&OXMIDicClass::GetClassExtensible>(),
    Row<&OXMIDicClass::GetClassAttBlocks>(),
    // OXMIDicExtension
    Row<&OXMIDicExtension::AddScope>(),
    Row<&OXMIDicExtension::RemoveScope>(),
    Row<&OXMIDicExtension::GetScopes>(),
    // OXMIDicAttribute
    Row<&OXMIDicAttribute::SetMandatory>(),
    Row<&OXMIDicAttribute::GetMandatory>(),
    Row<&OXMIDicAttribute::SetSensitive>(),
    Row<&OXMIDicAttribute::GetSensitive>(),
    Row<&OXMIDicAttribute::SetMultiValuated>(),
    Row<&OXMIDicAttribute::GetMultiValuated>(),
    Row<&OXMIDicAttribute::SetMaxLength>(),
    Row<&OXMIDicAttribute::GetMaxLength>(),
    Row<&OXMIDicAttribute::SetLower>(),
    Row<&OXMIDicAttribute::GetLower>(),
    Row<&OXMIDicAttribute::SetUpper>(),
    Row<&OXMIDicAttribute::GetUpper>(),
    Row<&OXMIDicAttribute::SetDefault>(),
    Row<&OXMIDicAttribute::GetDefault>(),
    Row<&OXMIDicAttribute::SetAccessMode>(),
    RowAfter<&OXMIDicAttribute::SetAccessMode, OXMDicACCESSMODE_Read, &OXMIDicAttribute::GetAccessMode>(),
    Row<&OXMIDicAttribute::SetUpdateFacet>(),
    RowAfter<&OXMIDicAttribute::SetUpdateFacet, OXMDicUPDATEFACET_IN, &OXMIDicAttribute::GetUpdateFacet>(),
    Row<&OXMIDicAttribute::SetCollectionType>(),
    RowAfter<&OXMIDicAttribute::SetCollectionType, OXMDicCOLLECTION_Set,
             &OXMIDicAttribute::GetCollectionType>(),
    Row<&OXMIDicAttribute::SetProxyable>(),
    Row<&OXMIDicAttribute::GetProxyable>(),
    Row<&OXMIDicAttribute::GetOrigin>(),
    Row<&OXMIDicAttribute::SetType>(),
    Row<Operation<OXMIDicAttribute, OXMIDicElement**>(&OXMIDicAttribute::GetType)>(),
    Row<&OXMIDicAttribute::GetSpecializedAttribute>(),
    // OXMIDicSimple
    Row<&OXMIDicSimple::SetMagnitude>(),
    Row<&OXMIDicSimple::GetMagnitude>(),
    Row<&OXMIDicSimple::SetDBFormat>(),
    Row<&OXMIDicSimple::GetDBFormat>(),
    Row<&OXMIDicSimple::SetCaseMode>(),
    RowAfter<&OXMIDicSimple::SetCaseMode, OXMDicCASEMODE_Mixed, &OXMIDicSimple::GetCaseMode>(),
    Row<&OXMIDicSimple::SetPrimitive>(),
    Row<&OXMIDicSimple::GetPrimitive>(),
    // OXMIDicRelationship
    Row<&OXMIDicRelationship::SetInjective>(),
    Row<&OXMIDicRelationship::GetInjective>(),
    Row<&OXMIDicRelationship::SetAggregationMode>(),
    RowAfter<&OXMIDicRelationship::SetAggregationMode, OXMDicAGGREGATION_Shared,
             &OXMIDicRelationship::GetAggregationMode>(),
    Row<&OXMIDicRelationship::SetScope>(),
    RowAfter<&OXMIDicRelationship::SetScope, OXMDicSCOPE_Vault, &OXMIDicRelationship::GetScope>(),
    Row<&OXMIDicRelationship::SetTarget>(),
    Row<&OXMIDicRelationship::GetTarget>(),
    Row<&OXMIDicRelationship::SetInvertedAttribute>(),
    Row<&OXMIDicRelationship::GetInvertedAttributes>(),
    Row<&OXMIDicRelationship::GetInvertedAttribute>(),
    Row<&OXMIDicRelationship::AddScope>(),
    Row<&OXMIDicRelationship::RemoveScope>(),
    Row<&OXMIDicRelationship::GetScopes>(),
    Row<&OXMIDicRelationship::IsClassInScope>(),
    // OXMIDicInverse
    Row<&OXMIDicInverse::SetTarget>(),
    Row<&OXMIDicInverse::GetTarget>(),
    Row<&OXMIDicInverse::SetInverse>(),
    Row<&OXMIDicInverse::GetInverse>(),
    // OXMIDicUnique
    Row<&OXMIDicUnique::AddElement>(),
    Row<&OXMIDicUnique::RemoveElement>(),
    Row<&OXMIDicUnique::GetElements>(),
    // OXMIDicEnum
    Row<Identified<OXMIDicEnum, OXMIDicEnumerator>(&OXMIDicEnum::CreateEnumerator)>(),
    Row<Named<OXMIDicEnum, OXMIDicEnumerator>(&OXMIDicEnum::CreateEnumerator)>(),
    Row<&OXMIDicEnum::CreateEnumValue>(),
    Row<&OXMIDicEnum::GetEnumerator>(),
    Row<&OXMIDicEnum::GetEnumValue>(),
    Row<&OXMIDicEnum::GetEnumValues>(),
    Row<&OXMIDicEnum::GetEnumerators>(),
    Row<&OXMIDicEnum::RemoveEnumerator>(),
    Row<&OXMIDicEnum::RemoveEnumValue>(),
    // OXMIDicEnumerator
    Row<&OXMIDicEnumerator::GetValue>(),
    Row<&OXMIDicEnumerator::SetValue>(),
    // OXMIDicCategory
    Row<&OXMIDicCategory::GetGroup>(),
    Row<&OXMIDicCategory::SetGroup>(),
    // OXMIDicPrimitive
    Row<&OXMIDicPrimitive::Primitive>(),
    // OXMIDicInterface
    Row<Identified<OXMIDicInterface, OXMIDicMethod>(&OXMIDicInterface::CreateMethod)>(),
    Row<Named<OXMIDicInterface, OXMIDicMethod>(&OXMIDicInterface::CreateMethod)>(),
    Row<&OXMIDicInterface::RemoveMethod>(),
    Row<&OXMIDicInterface::GetMethod>(),
    Row<&OXMIDicInterface::GetMethods>(),
    Row<&OXMIDicInterface::GetClassMethod>(),
    Row<&OXMIDicInterface::GetAllMethods>(),
    Row<&OXMIDicInterface::SetSuperInterface>(),
    Row<&OXMIDicInterface::GetSuperInterface>(),
    Row<&OXMIDicInterface::GetSuperInterfaces>(),
    // OXMIDicMethod
    Row<Identified<OXMIDicMethod, OXMIDicParameter>(&OXMIDicMethod::CreateParameter)>(),
    Row<Named<OXMIDicMethod, OXMIDicParameter>(&OXMIDicMethod::CreateParameter)>(),
    Row<&OXMIDicMethod::GetParameter>(),
    Row<&OXMIDicMethod::GetParameters>(),
    Row<&OXMIDicMethod::RemoveParameter>(),
    // OXMIDicParameter
    Row<Operation<OXMIDicParameter, OXMIDicElement**>(&OXMIDicParameter::GetType)>(),
    Row<&OXMIDicParameter::SetType>(),
    Row<&OXMIDicParameter::GetKind>(),
    Row<&OXMIDicParameter::SetKind>(),
    Row<&OXMIDicParameter::GetDefault>(),
    Row<&OXMIDicParameter::SetDefault>(),
    // OXMIDicCommand
    Row<Named<OXMIDicCommand, OXMIDicCommandParameter>(&OXMIDicCommand::CreateParameter)>(),
    Row<Identified<OXMIDicCommand, OXMIDicCommandParameter>(&OXMIDicCommand::CreateParameter)>(),
    Row<&OXMIDicCommand::GetCommandType>(),
    Row<&OXMIDicCommand::SetCommandType>(),
    Row<&OXMIDicCommand::GetElements>(),
    Row<&OXMIDicCommand::GetTarget>(),
    Row<&OXMIDicCommand::SetTarget>(),
    // OXMIDicCommandParameter
    Row<&OXMIDicCommandParameter::GetOrigin>(),
    Row<&OXMIDicCommandParameter::GetTarget>(),
    Row<&OXMIDicCommandParameter::SetTarget>(),
    // OXMIDicRBOMapping
    Row<&OXMIDicRBOMapping::SetApplyToRBOClass>(),
    Row<&OXMIDicRBOMapping::GetApplyToRBOClass>(),
    Row<&OXMIDicRBOMapping::SetApplyToRBOClassRef>(),
    Row<&OXMIDicRBOMapping::GetApplyToRBOClassRef>(),
    Row<&OXMIDicRBOMapping::SetApplyToRBOClassName>(),
    Row<&OXMIDicRBOMapping::GetApplyToRBOClassName>(),
    Row<&OXMIDicRBOMapping::CreateRBORoot>(),
    Row<&OXMIDicRBOMapping::GetElements>(),
    // OXMIDicRBORoot
    Row<&OXMIDicRBORoot::SetBaseClass>(),
    Row<&OXMIDicRBORoot::GetBaseClass>(),
    Row<&OXMIDicRBORoot::SetBaseClassRef>(),
    Row<&OXMIDicRBORoot::GetBaseClassRef>(),
    Row<&OXMIDicRBORoot::SetBaseClassName>(),
    Row<&OXMIDicRBORoot::GetBaseClassName>(),
    Row<&OXMIDicRBORoot::CreateRBOComponent>(),
    Row<&OXMIDicRBORoot::GetElements>(),
    // OXMIDicRBOComponent
    Row<&OXMIDicRBOComponent::SetBaseClass>(),
    Row<&OXMIDicRBOComponent::GetBaseClass>(),
    Row<&OXMIDicRBOComponent::SetBaseClassRef>(),
    Row<&OXMIDicRBOComponent::GetBaseClassRef>(),
    Row<&OXMIDicRBOComponent::SetBaseClassName>(),
    Row<&OXMIDicRBOComponent::GetBaseClassName>(),
    Row<&OXMIDicRBOComponent::CreateRBOComponent>(),
    Row<&OXMIDicRBOComponent::CreateRBOPathExpression>(),
    Row<&OXMIDicRBOComponent::GetRBOPathExpression>(),
    Row<&OXMIDicRBOComponent::SetValidityRule>(),
    Row<&OXMIDicRBOComponent::GetValidityRule>(),
    Row<&OXMIDicRBOComponent::GetElements>(),
    // OXMIDicRBOPathExpression
    Row<&OXMIDicRBOPathExpression::SetTarget>(),
    Row<&OXMIDicRBOPathExpression::GetTarget>(),
    Row<&OXMIDicRBOPathExpression::SetTargetRef>(),
    Row<&OXMIDicRBOPathExpression::GetTargetRef>(),
    Row<&OXMIDicRBOPathExpression::SetTargetName>(),
    Row<&OXMIDicRBOPathExpression::GetTargetName>(),
    Row<&OXMIDicRBOPathExpression::SetPathExprType>(),
    Row<&OXMIDicRBOPathExpression::GetPathExprType>(),
    Row<&OXMIDicRBOPathExpression::SetPathExprSubType>(),
    Row<&OXMIDicRBOPathExpression::GetPathExprSubType>(),
    // OXMIDicAttributeBlock
    Row<&OXMIDicAttributeBlock::SetClass>(),
    Row<&OXMIDicAttributeBlock::GetClass>(),
    Row<&OXMIDicAttributeBlock::SetFather>(),
    Row<&OXMIDicAttributeBlock::GetFather>(),
    Row<&OXMIDicAttributeBlock::SetRoot>(),
    Row<&OXMIDicAttributeBlock::GetRoot>(),
    Row<&OXMIDicAttributeBlock::AddAttribute>(),
    Row<&OXMIDicAttributeBlock::GetAttributes>(),
    Row<&OXMIDicAttributeBlock::BuildName>(),
    Row<&OXMIDicAttributeBlock::BuildRoot>(),
    Row<&OXMIDicAttributeBlock::BuildFather>(),
    Row<&OXMIDicAttributeBlock::BuildAllAttributes>(),
};

}  // namespace

std::string_view CallRow::Name() const {
    const std::size_t start = text.find("OXMIDic", text.find('&'));
    return text.substr(start, text.find_first_of("];)", start) - start);
}

std::span<const CallRow> CallRows() { return kRows; }
