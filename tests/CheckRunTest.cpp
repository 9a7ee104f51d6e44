#include "CheckRun.h"

#include <algorithm>

#include "CheckFixture.h"
#include "OxmDicFromXML.h"
#include "ReaderFindings.h"

namespace {

const std::string kData = ZANDIC_TEST_DATA;

class CheckRunTest : public CheckFixture {};

TEST_F(CheckRunTest, ADocumentWithoutAFaultHasNoFinding) {
    MakePackage("P", ClassTag("C", 1));

    const tool::CheckResult result = CheckName("P", Directory().Path());

    EXPECT_EQ(Summary(result.findings), "");
    EXPECT_EQ(result.documents, std::vector<std::string>{Directory().Path() + "/P.metadata"});
}

TEST_F(CheckRunTest, AMissingDocumentHasNoPlace) {
    MakePackage("People", "");

    const tool::CheckResult result = CheckName("Peopel", Directory().Path());

    ASSERT_EQ(Summary(result.findings), "Peopel.metadata file-not-found Peopel\n");
    EXPECT_EQ(result.findings[0].text, "there is no document Peopel.metadata; did you mean People?");
    EXPECT_EQ(result.findings[0].notes[0].text, "searched is " + Directory().Path());
}

TEST_F(CheckRunTest, FaultsOfAllDocumentsComeSortedByPlace) {
    MakePackage("B", "<Class Name=\"X\"/>\n<Class/>");
    MakePackage("A", "<Enum Name=\"E\"/>");

    EXPECT_EQ(Summary(CheckPath(Directory().Path()).findings),
              "A.metadata:2:1 missing-attribute A::E\n"
              "B.metadata:2:1 missing-attribute B::X\n"
              "B.metadata:3:1 missing-attribute B\n"
              "B.metadata:3:1 missing-attribute B\n");
}

TEST_F(CheckRunTest, APrerequisiteIsToldOnceInItsOwnFileAndWhatFollowsUnderIt) {
    MakePackage("A", ClassTag("CA", 1) + "<Class Name=\"X\"/>");
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");
    MakePackage("Q", ClassTag("D", 3, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");

    EXPECT_EQ(Summary(CheckPath(Directory().Path()).findings),
              "A.metadata:3:1 missing-attribute A::X\n"
              "P.metadata:1:62 prerequisite-failed P > 0\n"
              "P.metadata:2:77 reference-not-found P::C > 0\n"
              "Q.metadata:1:62 prerequisite-failed Q > 0\n"
              "Q.metadata:2:77 reference-not-found Q::D > 0\n");
}

TEST_F(CheckRunTest, OfAPackageThatIsOnlyUsedTheWarningsAreNotTold) {
    MakePackage("A", ClassTag("CA", 1, "Extra=\"1\"") + "<Unknown" + Id("U", 3) + "/>");
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");

    const tool::CheckResult result = CheckName("P", Directory().Path());

    EXPECT_EQ(Summary(result.findings), "");
    EXPECT_EQ(result.documents.size(), 1U);
    EXPECT_EQ(CheckName("A", Directory().Path()).findings.size(), 2U);
}

TEST_F(CheckRunTest, AReferenceToAPackageThatIsNotUsedIsAnErrorWhateverIsLoadedBefore) {
    MakePackage("A", ClassTag("CA", 1));
    MakePackage("P", ClassTag("C", 2, "SuperRef=\"" + U(1) + "\""));

    EXPECT_EQ(Summary(CheckPath(Directory().Path()).findings),
              "P.metadata:2:77 reference-not-found P::C\n"
              "+ A.metadata:2:1 A::CA stands here\n");
}

TEST_F(CheckRunTest, TheOtherPartyStandsInItsDocument) {
    MakePackage("A", "\n  " + ClassTag("CA", 1) + ClassTag("CB", 9));
    MakePackage(
        "P", ClassTag("C", 1) + ClassTag("D", 3, "SuperRef=\"" + U(9) + "\"") + "<Enum" + Id("D", 4) + "/>",
        "UseNames=\"A\"");

    EXPECT_EQ(Summary(CheckName("P", Directory().Path()).findings),
              "P.metadata:2:17 duplicate-uuid P::C\n"
              "+ A.metadata:3:3 A::CA has this UUID\n"
              "P.metadata:4:7 duplicate-name P::D\n"
              "+ P.metadata:3:1 P::D has this name\n");
}

TEST_F(CheckRunTest, ColumnsCountCharactersInEveryEncoding) {
    const std::string uuid = U(0xF1);
    const std::u16string text =
        u"<Package Name=\"W\" Uuid=\"" + std::u16string(uuid.begin(), uuid.end()) +
        u"\">\n  <!-- \u00e4\u20ac\U0001F600 --><Class Name=\"\u00e4\u20ac\U0001F600\"/>\n</Package>";
    std::string wide = "\xFF\xFE";
    for (const char16_t unit : text) {
        wide += static_cast<char>(unit & 0xFF);
        wide += static_cast<char>(unit >> 8);
    }
    Directory().MakeFile("W.metadata", wide);
    Directory().MakeFile("N.metadata", "\xEF\xBB\xBF<Package Name=\"N\" Uuid=\"" + U(0xF2) +
                                           "\" Alias=\"\xC3\xA4\xE2\x82\xAC\" Extra=\"1\"/>");

    EXPECT_EQ(Summary(CheckPath(Directory().Path()).findings),
              "N.metadata:1:73 unknown-attribute (warning) N\n"
              "W.metadata:2:15 missing-attribute W::\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\n");
}

TEST_F(CheckRunTest, ADocumentThatIsNotWellFormedHasOneFault) {
    Directory().MakeFile("P.metadata", "<Package>\n  <Class>\n</Package>");

    EXPECT_EQ(Summary(CheckName("P", Directory().Path()).findings),
              "P.metadata:3:1 document-not-readable P\n");
}

// Tuning documents.

TEST_F(CheckRunTest, FaultsOfATuningDocumentAreErrors) {
    MakePackage("P", ClassTag("C", 1));
    Directory().MakeFile("P.tuning", "<Package" + Id("P", 0xF0000) + ">\n<Sample/></Package>");

    const tool::CheckResult result = CheckName("P", Directory().Path());

    EXPECT_EQ(Summary(result.findings), "P.tuning tuning-failed P > 1\nP.tuning:2:1 unsupported-tag P\n");
    EXPECT_EQ(result.documents.size(), 2U);
}

TEST_F(CheckRunTest, ATuningDocumentIsCheckedWithItsPackageOfWhichNoWarningsAreTold) {
    MakePackage("P", ClassTag("C", 1, "Extra=\"1\""));
    Directory().MakeFile("P.tuning", "<Package" + Id("P", 0xF0000) + ">\n<Sample/></Package>");

    const tool::CheckResult result = CheckFile(Directory().Path() + "/P.tuning");

    EXPECT_EQ(Summary(result.findings), "P.tuning tuning-failed P > 1\nP.tuning:2:1 unsupported-tag P\n");
    EXPECT_EQ(result.documents, std::vector<std::string>{Directory().Path() + "/P.tuning"});
}

TEST_F(CheckRunTest, ATuningDocumentOfAPackageThatFailsIsReadAllTheSame) {
    MakePackage("P", "<Class Name=\"X\"/>");
    Directory().MakeFile("P.tuning", "<Package" + Id("P", 0xF0000) + ">\n<Sample/></Package>");

    EXPECT_EQ(Summary(CheckName("P", Directory().Path()).findings),
              "P.metadata:2:1 missing-attribute P::X\nP.tuning:2:1 unsupported-tag P\n");
}

TEST_F(CheckRunTest, TheTuningOfAPackageThatIsOnlyUsedIsNotTold) {
    MakePackage("A", ClassTag("C", 1));
    Directory().MakeFile("A.tuning", "<Package" + Id("A", 0xF0000) + ">\n<Sample/></Package>");
    MakePackage("P", ClassTag("D", 2, "SuperRef=\"" + U(1) + "\""), "UseNames=\"A\"");

    EXPECT_EQ(Summary(CheckName("P", Directory().Path()).findings), "");
}

// Documents that cannot be in memory together.

TEST_F(CheckRunTest, DocumentsOfOnePackageInTwoKindsAreBothRead) {
    MakePackage("P", ClassTag("C", 1, "Extra=\"1\""));
    Directory().MakeFile("P.rbodef",
                         "<Package" + Id("P", 0xF0009) + "><Unknown" + Id("U", 3) + "/></Package>");

    EXPECT_EQ(Summary(CheckPath(Directory().Path(), true).findings),
              "P.metadata:2:77 unknown-attribute (warning) P::C\nP.rbodef:1:62 unknown-tag (warning) P::U\n");
}

TEST_F(CheckRunTest, DocumentsThatNameTheSamePackageAreBothRead) {
    MakePackage("P", ClassTag("C", 1));
    Directory().MakeFile("Q.metadata", "<Package" + Id("P", 0xF0009) + "><Class Name=\"X\"/></Package>");

    EXPECT_EQ(Summary(CheckPath(Directory().Path()).findings),
              "Q.metadata:1:10 package-name-differs (warning) P\n"
              "Q.metadata:1:62 missing-attribute P::X\n");
}

TEST_F(CheckRunTest, ADocumentThatAnotherKindOfItIsUsedInPlaceOfIsReadAlone) {
    MakePackage("P", ClassTag("C", 1, "Extra=\"1\""));
    Directory().MakeFile("P.rbodef", "<Package" + Id("P", 0xF0009) + "/>");
    MakePackage("A", "", "UseNames=\"P.rbodef\"");

    const tool::CheckResult result = CheckPath(Directory().Path());

    EXPECT_NE(Summary(result.findings).find("P.metadata:2:77 unknown-attribute (warning) P::C\n"),
              std::string::npos);
}

// What the reader refuses is what is told.

/// The faulty documents, with their directories.
std::vector<std::string> BadDocuments() {
    std::vector<std::string> names;
    for (const char* const directory : {"/bad", "/faults", "/good", "/corrected", "/ring"}) {
        for (const auto& entry : std::filesystem::directory_iterator(kData + directory)) {
            if (entry.path().extension() != ".metadata") continue;
            names.push_back(entry.path().string().substr(kData.size() + 1));
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string NameOfCase(const ::testing::TestParamInfo<std::string>& info) {
    std::string name = info.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0; },
        '_');
    return name;
}

class CheckAgainstLoadTest : public CheckFixture, public ::testing::WithParamInterface<std::string> {
protected:
    std::string File() const { return kData + "/" + GetParam(); }
    std::string Name() const { return std::filesystem::path(GetParam()).stem().string(); }
    std::string Path() const {
        return kData + "/" + GetParam().substr(0, GetParam().find('/')) + ":" + kData + "/good";
    }

    static bool IsError(const tool::Finding& finding) { return finding.severity == ZanDicSeverity::Error; }

    /// The first error of a plain load, as a finding.
    struct PlainLoad {
        HRESULT rc;
        FaultCollector::Row error;
    };
    PlainLoad LoadPlainly() {
        FaultCollector faults(false);
        const HRESULT rc = LoadFrom(Path(), Name());
        Manager().End();
        Manager().Init(0);
        const auto error = std::find_if(faults.rows.begin(), faults.rows.end(), [](const auto& row) {
            return row.severity == ZanDicSeverity::Error;
        });
        return {rc, error != faults.rows.end() ? *error : FaultCollector::Row{}};
    }
};

TEST_P(CheckAgainstLoadTest, ItFailsToLoadExactlyWhenCheckGivesAnError) {
    const HRESULT rc = LoadPlainly().rc;

    const tool::CheckResult result = CheckFile(File(), kData + "/good");

    const auto isErrorOfALoad = [](const tool::Finding& each) {
        return IsError(each) && !tool::IsTuningFile(each.at.file);
    };
    EXPECT_EQ(Failed(rc), std::any_of(result.findings.begin(), result.findings.end(), isErrorOfALoad))
        << Summary(result.findings);
}

TEST_P(CheckAgainstLoadTest, TheFirstErrorIsThatOfTheLoad) {
    const PlainLoad plain = LoadPlainly();
    tool::ReaderFindings reader(Path());
    ZanDicSetDiagnosticObserver(&reader);
    const ZELString name(Name());
    OxmDicFromXMLAll(&Manager(), {&name, 1}, Path().c_str());
    tool::Documents documents;
    const tool::Findings findings = reader.Take(documents);

    const auto first = std::find_if(findings.begin(), findings.end(), IsError);
    ASSERT_EQ(first == findings.end(), Succeeded(plain.rc));
    if (Succeeded(plain.rc)) return;
    EXPECT_EQ(first->code, ZanDicDiagnosticName(plain.error.code));
    EXPECT_EQ(first->at.file, plain.error.file);
    EXPECT_EQ(first->at.place.line, plain.error.place.line);
    EXPECT_EQ(first->at.place.column, plain.error.place.column);
}

INSTANTIATE_TEST_SUITE_P(Documents, CheckAgainstLoadTest, ::testing::ValuesIn(BadDocuments()), NameOfCase);

std::vector<std::string> BadTunings() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kData + "/bad")) {
        if (entry.path().extension() == ".tuning") names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class CheckOfTuningTest : public CheckFixture, public ::testing::WithParamInterface<std::string> {};

TEST_P(CheckOfTuningTest, AFaultyTuningDocumentIsAnErrorAtAPlace) {
    Directory().MakeFile("Tuned.metadata", ContentOf(kData + "/good/Tuned.metadata"));
    Directory().MakeFile("Tuned.tuning", ContentOf(kData + "/bad/" + GetParam() + ".tuning"));

    const tool::CheckResult result = CheckFile(Directory().Path() + "/Tuned.tuning");

    int errors = 0;
    for (const tool::Finding& finding : result.findings) {
        if (finding.severity != ZanDicSeverity::Error || finding.cause != tool::Finding::kNone) continue;
        ++errors;
        EXPECT_EQ(PlaceText({finding.at.file, {}}), "Tuned.tuning");
        EXPECT_GT(finding.at.place.line, 0) << finding.text;
    }
    EXPECT_GT(errors, 0) << Summary(result.findings);
}

INSTANTIATE_TEST_SUITE_P(Documents, CheckOfTuningTest, ::testing::ValuesIn(BadTunings()),
                         [](const auto& name) { return name.param; });

}  // namespace
