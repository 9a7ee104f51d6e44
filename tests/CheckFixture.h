/// What tests of the check share: documents of a test, and what is found in them, each finding on a line.
#ifndef CHECK_FIXTURE_H
#define CHECK_FIXTURE_H

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "CheckPlan.h"
#include "CheckRun.h"
#include "ReaderFixture.h"
#include "zandic.hpp"

class CheckFixture : public ReaderFixture {
protected:
    /// Checks what the plan says, and expects that nothing stays loaded.
    tool::CheckResult Check(tool::CheckPlan plan) {
        const int objects = ZanDicObj::live_Objects();
        tool::CheckResult result = tool::Check(_Dictionary, std::move(plan));
        EXPECT_EQ(ZanDicObj::live_Objects(), objects) << "something stays loaded";
        return result;
    }

    tool::CheckResult CheckName(std::string_view name, const std::string& path) {
        tool::CheckPlan plan;
        plan.AddName(name, path);
        return Check(std::move(plan));
    }

    tool::CheckResult CheckFile(std::string_view file, const std::string& path = "") {
        tool::CheckPlan plan;
        plan.AddFile(file, path);
        return Check(std::move(plan));
    }

    tool::CheckResult CheckPath(const std::string& path, bool ofEveryKind = false) {
        tool::CheckPlan plan;
        plan.AddPath(path, ofEveryKind);
        return Check(std::move(plan));
    }

    /// "FILE:LINE:COLUMN code ELEMENT", without the directory of this test; "> N" for a cause, "+" for a
    /// note.
    std::string Summary(const tool::Findings& findings) const {
        std::string summary;
        for (const tool::Finding& finding : findings) {
            summary += PlaceText(finding.at) + " " + std::string(finding.code);
            if (finding.severity == ZanDicSeverity::Warning) summary += " (warning)";
            if (!finding.element.empty()) summary += " " + finding.element;
            if (finding.cause != tool::Finding::kNone) summary += " > " + std::to_string(finding.cause);
            summary += "\n";
            for (const tool::FindingNote& note : finding.notes) {
                if (!note.at.file.empty()) summary += "+ " + PlaceText(note.at) + " " + note.text + "\n";
            }
        }
        return summary;
    }

    std::string PlaceText(const tool::FilePlace& at) const {
        std::string file = at.file;
        const std::string own = Directory().Path() + "/";
        if (file.starts_with(own)) file.erase(0, own.size());
        if (at.place.line == 0) return file;
        return file + ":" + std::to_string(at.place.line) + ":" + std::to_string(at.place.column);
    }

    static std::string ContentOf(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }

    const zandic::Dictionary& Dictionary() const { return _Dictionary; }

private:
    zandic::Dictionary _Dictionary = zandic::Dictionary::Open();
};

#endif
