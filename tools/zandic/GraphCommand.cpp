#include <fmt/format.h>

#include <algorithm>
#include <queue>
#include <string>
#include <vector>

#include "Command.h"
#include "Diagram.h"
#include "DiagramText.h"
#include "Model.h"
#include "Nearest.h"
#include "SecondProcess.h"
#include "Targets.h"

namespace tool {
namespace {

constexpr int kUsualDepth = 1;

void SortOnce(std::vector<int>& numbers) {
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}

/// The classes of what was asked for, and what stands beside them.
DiagramSubjects SubjectsOf(Session& session, const ClassGraph& graph, const std::vector<AskedObject>& objects,
                           bool areAll) {
    DiagramSubjects subjects;
    for (const AskedObject& each : objects) {
        if (const auto package = zandic::As<OXMIDicPackage>(each.object)) {
            const auto classes = zandic::Classes(*package);
            if (classes.IsEmpty() && !areAll)
                session.Refuse(each.asked, "the package has no classes to draw");
            for (OXMIDicClass& element : classes) {
                const int index = graph.IndexOf(element);
                subjects.classes.push_back(index);
                const std::vector<int> named = graph.Named(index);
                subjects.context.insert(subjects.context.end(), named.begin(), named.end());
            }
        } else if (const auto element = zandic::As<OXMIDicClass>(each.object);
                   element && graph.IndexOf(*element) >= 0) {
            const int index = graph.IndexOf(*element);
            subjects.classes.push_back(index);
            const std::vector<int>& joined = graph.Neighbours(index);
            subjects.context.insert(subjects.context.end(), joined.begin(), joined.end());
        } else {
            session.Refuse(each.asked, fmt::format("{} {} is no class and cannot be drawn",
                                                   TagOf(*each.object), QualifiedName(*each.object)));
        }
    }
    SortOnce(subjects.classes);
    SortOnce(subjects.context);
    std::erase_if(subjects.context, [&](int index) {
        return std::binary_search(subjects.classes.begin(), subjects.classes.end(), index);
    });
    return subjects;
}

/// \returns the class of that plain name; -1, which is told, when there is none or there are several.
int FindByPlainName(Session& session, const ClassGraph& graph, const std::string& name) {
    std::vector<std::string> found;
    int last = -1;
    Nearest nearest(name);
    for (int index = 0; index < graph.Size(); ++index) {
        nearest.Add(graph[index].name);
        if (graph[index].name != name) continue;
        found.push_back(graph[index].QualifiedName());
        last = index;
    }
    if (found.size() == 1) return last;
    session.Refuse(name, found.empty() ? "no loaded package has such a class" + nearest.Question()
                                       : fmt::format("it is one of {}", fmt::join(found, ", ")));
    return -1;
}

/// \returns the class in the middle of the picture; null, which is told, when there is none. Loads its
/// package.
zandic::Handle<OXMIDicClass> LoadMiddle(Session& session, const Options& options) {
    Options only;
    only.names = {*options.around};
    const std::vector<AskedObject> found = Targets(session, only).Objects();
    if (found.empty()) return {};
    auto element = zandic::As<OXMIDicClass>(found.front().object);
    if (!element) session.Refuse(*options.around, "this is no class");
    return element;
}

/// Whether the middle of a picture is looked for by its plain name in what is loaded.
bool IsPlain(const std::string& name) {
    return name.find(kNameSeparator) == std::string::npos && !zandic::ParseUuid(name);
}

/// The classes within some steps of one; none around -1.
DiagramSubjects SubjectsAround(const ClassGraph& graph, int middle, int depth) {
    std::vector<int> steps(static_cast<std::size_t>(graph.Size()), -1);
    std::queue<int> waiting;
    const auto reach = [&](int index, int step) {
        int& known = steps[static_cast<std::size_t>(index)];
        if (known >= 0) return;
        known = step;
        waiting.push(index);
    };
    if (middle >= 0) reach(middle, 0);
    while (!waiting.empty()) {
        const int index = waiting.front();
        waiting.pop();
        const int step = steps[static_cast<std::size_t>(index)];
        if (step == depth) continue;
        for (const int other : graph.Neighbours(index)) reach(other, step + 1);
    }
    DiagramSubjects subjects;
    for (int index = 0; index < graph.Size(); ++index) {
        const int step = steps[static_cast<std::size_t>(index)];
        if (step < 0) continue;
        subjects.classes.push_back(index);
        subjects.steps.push_back(step);
    }
    return subjects;
}

/// Writes the picture that Graphviz makes of \p dot.
void WriteSvg(Session& session, const std::string& dot, Output& output) {
    const SecondRun run = RunProgram("dot", {"-Tsvg"}, dot);
    if (run.isMissing) {
        session.Refuse(
            "",
            "SVG is drawn by 'dot' of Graphviz, which is not installed; --format dot and --format mermaid "
            "do without");
    } else if (!run.isStarted || run.status != 0) {
        const std::string reason = run.err.substr(0, run.err.find('\n'));
        session.Refuse("dot", reason.empty() ? fmt::format("it ended with status {}", run.status) : reason);
    } else {
        output.Write(run.out);
    }
}

void WritePicture(Session& session, const ClassGraph& graph, const Diagram& diagram, const Options& options,
                  Output& output) {
    const std::string caption = LossesText(diagram.losses);
    if (!caption.empty() && !options.quiet) session.Remark(caption);
    if (options.json) {
        JsonWriter json(output);
        WriteDiagram(graph, diagram, json);
        return json.End();
    }
    const std::string format = options.format.value_or("svg");
    if (format == "mermaid") return WriteMermaid(graph, diagram, caption, output);
    if (format == "dot") return WriteDot(graph, diagram, caption, output);
    std::string dot;
    Output text(dot);
    WriteDot(graph, diagram, caption, text);
    text.Flush();
    WriteSvg(session, dot, output);
}

}  // namespace

void RunGraph(Session& session, const Options& options, Output& output) {
    const std::vector<AskedObject> objects = Targets(session, options).Objects();
    zandic::Handle<OXMIDicClass> middle;
    if (options.around && !IsPlain(*options.around)) middle = LoadMiddle(session, options);

    const ClassGraph graph(session.Dictionary());
    DiagramSubjects subjects;
    if (!options.around) {
        subjects = SubjectsOf(session, graph, objects, options.names.empty());
    } else {
        int index = middle ? graph.IndexOf(*middle) : -1;
        if (IsPlain(*options.around)) index = FindByPlainName(session, graph, *options.around);
        subjects = SubjectsAround(graph, index, options.depth.value_or(kUsualDepth));
    }
    if (subjects.classes.empty()) {
        if (session.IsClean()) session.Refuse("", "there is no class to draw");
        if (!options.json) return;
    }
    DiagramLimits limits;
    limits.boxes = options.maxBoxes.value_or(limits.boxes);
    limits.rows = options.maxRows.value_or(limits.rows);
    WritePicture(session, graph, MakeDiagram(graph, subjects, limits), options, output);
}

}  // namespace tool
