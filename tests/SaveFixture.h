/// What tests of saving share: a directory for the files, a fixed moment, documents of the test data.
#ifndef SAVE_FIXTURE_H
#define SAVE_FIXTURE_H

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "DictionaryFixture.h"
#include "ZELTestDirectory.h"

inline std::string FileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// Adds to a fixture what saving needs. Saved documents are of 29 February 2000, 12:34:56.
template <class Fixture>
class SavingFixture : public Fixture {
protected:
    SavingFixture() { ::setenv("SOURCE_DATE_EPOCH", "951827696", 1); }
    ~SavingFixture() override { ::unsetenv("SOURCE_DATE_EPOCH"); }

    /// \returns the name of a package's document, which is metadata unless \p packageName ends with a "." and
    /// another content word.
    static std::string DocumentName(const std::string& packageName) {
        return packageName.find('.') == std::string::npos ? packageName + ".metadata" : packageName;
    }

    /// Loads a package of the test data.
    HRESULT LoadGood(const char* packageName) { return LoadFrom(ZANDIC_TEST_DATA "/good", packageName); }

    HRESULT LoadFrom(const std::string& path, const char* packageName) {
        const ZELString name(packageName);
        return this->Manager().LoadPackageFromDir(path.c_str(), &name, OXMDicPERSISTENT_Xml);
    }

    /// \returns the document that saving the package gives.
    std::string SavedText(const char* packageName) {
        const ZELString name(packageName);
        EXPECT_EQ(this->Manager().SaveXml(directory.Path().c_str(), &name), S_OK);
        return FileText(directory.Path(DocumentName(packageName)));
    }

    /// \returns the schema that the export of the package gives.
    std::string ExpressText(const char* packageName) {
        const ZELString name(packageName);
        EXPECT_EQ(this->Manager().SaveExpress(directory.Path().c_str(), &name), S_OK);
        return FileText(directory.Path(std::string(packageName) + ".express"));
    }

    /// Empties the dictionary.
    void StartAnew() {
        this->Manager().End();
        this->Manager().Init(0);
    }

    TestDirectory directory;
};

using SaveFixture = SavingFixture<DictionaryFixture>;

#endif
