/// Identifiers of the interfaces, and the forward declarations that go with them. A component that
/// answers one of these identifiers hands out a pointer of the interface of the same name.
#ifndef OXMI_DIC_IDENTIFIERS_H
#define OXMI_DIC_IDENTIFIERS_H

#include "ZELInterfaceId.h"

class OXMIDicApp;
class OXMIDicElementH;
class OXMIDicMgr;
class OXMIDicElement;
class OXMIDicPackage;
class OXMIDicClass;
class OXMIDicInterface;
class OXMIDicAttribute;
class OXMIDicSimple;
class OXMIDicRelationship;
class OXMIDicInverse;
class OXMIDicExtension;
class OXMIDicAttributeBlock;
class OXMIDicEnum;
class OXMIDicEnumerator;
class OXMIDicPrimitive;
class OXMIDicCategory;
class OXMIDicUnique;
class OXMIDicMethod;
class OXMIDicParameter;
class OXMIDicCommand;
class OXMIDicCommandParameter;
class OXMIDicRBOClass;
class OXMIDicRBOMapping;
class OXMIDicRBORoot;
class OXMIDicRBOComponent;
class OXMIDicRBOPathExpression;
class OXMIDicBObject;
class OXMIDicBOLink;

inline constexpr ZELInterfaceId IID_OXMIDicApp{0x86dc283cf0480ff9, 0x47eaa0992cb6916d};
inline constexpr ZELInterfaceId IID_OXMIDicElementH{0xca118783593942a4, 0x1509bb0a9bf13331};
inline constexpr ZELInterfaceId IID_OXMIDicMgr{0x12e1bc7656670b14, 0xf5ec52ed01088475};
inline constexpr ZELInterfaceId IID_OXMIDicElement{0x2909406c2e416788, 0x59ba1b0d5c906158};
inline constexpr ZELInterfaceId IID_OXMIDicPackage{0x2a095ee82bb29976, 0x5d32fe61985fb4e7};
inline constexpr ZELInterfaceId IID_OXMIDicClass{0x59e2d15364c7a500, 0x9a1e40b458151a99};
inline constexpr ZELInterfaceId IID_OXMIDicInterface{0x1d8a4eace693ae2d, 0x68b4aef73eaabe17};
inline constexpr ZELInterfaceId IID_OXMIDicAttribute{0x13e783e7eb04b39b, 0x142c836478068577};
inline constexpr ZELInterfaceId IID_OXMIDicSimple{0x260df25453fe2e85, 0x3b041641178854f2};
inline constexpr ZELInterfaceId IID_OXMIDicRelationship{0x35c719c2add9ca88, 0x00a154d85ed8abcc};
inline constexpr ZELInterfaceId IID_OXMIDicInverse{0x59ec8712e8e3574f, 0xc0290103855dbf55};
inline constexpr ZELInterfaceId IID_OXMIDicExtension{0xe7949b80dcb0b82e, 0x6e704245a4ff91e3};
inline constexpr ZELInterfaceId IID_OXMIDicAttributeBlock{0x37a788d106762832, 0xde1b1471320a88ea};
inline constexpr ZELInterfaceId IID_OXMIDicEnum{0x2cd552a09ddbef12, 0x4350cc1721e52f21};
inline constexpr ZELInterfaceId IID_OXMIDicEnumerator{0xb600e6129ec04ece, 0x9ed89eddd6846325};
inline constexpr ZELInterfaceId IID_OXMIDicPrimitive{0xe34acb115ee347dd, 0x627bf3225fac9cb6};
inline constexpr ZELInterfaceId IID_OXMIDicCategory{0xee889fe46f2c7a8c, 0xa930d55d9545f0f3};
inline constexpr ZELInterfaceId IID_OXMIDicUnique{0x75927b0fe339d309, 0x43f2f1936e85df08};
inline constexpr ZELInterfaceId IID_OXMIDicMethod{0x050c86bd84e0164b, 0x990d3cd8381df22f};
inline constexpr ZELInterfaceId IID_OXMIDicParameter{0xfcc1c0c8b0cdf20a, 0xe07cb5793e7fb97b};
inline constexpr ZELInterfaceId IID_OXMIDicCommand{0xb5c34e7e77ca4499, 0x78f6d82486ea0214};
inline constexpr ZELInterfaceId IID_OXMIDicCommandParameter{0x7b7e8913655c1d15, 0x1dcd327f761e07cb};
inline constexpr ZELInterfaceId IID_OXMIDicRBOClass{0xa92fa271dbc52933, 0x9672be1a7fed0bb9};
inline constexpr ZELInterfaceId IID_OXMIDicRBOMapping{0x5cbe4f50bdbcda98, 0xc44a66f4cf25e346};
inline constexpr ZELInterfaceId IID_OXMIDicRBORoot{0x134b8db4b18fbdb1, 0x1e2ed6cb6470ff1f};
inline constexpr ZELInterfaceId IID_OXMIDicRBOComponent{0x57e485b6761978dd, 0x4f859933fdf0a45f};
inline constexpr ZELInterfaceId IID_OXMIDicRBOPathExpression{0xd9855162fd0b00ea, 0x2e460a9618949a23};
inline constexpr ZELInterfaceId IID_OXMIDicBObject{0x4ea9877af376bc25, 0x310a853eec9a72f2};
inline constexpr ZELInterfaceId IID_OXMIDicBOLink{0x01f72b0a43c20f56, 0x64e752cc93a9b8b6};

#endif
