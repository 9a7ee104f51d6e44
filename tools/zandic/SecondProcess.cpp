#include "SecondProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace tool {
namespace {

/// This program, whatever became of its file.
constexpr const char* kThisProgram = "/proc/self/exe";
constexpr std::size_t kPiece = std::size_t{64} * 1024;

/// A descriptor that is closed at the end.
class Descriptor {
public:
    Descriptor() = default;
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    void Take(int number) { _Number = number; }
    int Number() const { return _Number; }
    bool IsOpen() const { return _Number >= 0; }
    void Close() {
        if (IsOpen()) close(std::exchange(_Number, -1));
    }

private:
    int _Number = -1;
};

/// One stream of the other process.
struct Pipe {
    Descriptor readEnd;
    Descriptor writeEnd;

    /// \returns 0, or the number of the error.
    int Open() {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) return errno;
        readEnd.Take(ends[0]);
        writeEnd.Take(ends[1]);
        return 0;
    }

    /// Appends what there is to \p text; closes the pipe at its end.
    void Read(std::string& text) {
        std::array<char, kPiece> piece;
        const ssize_t size = read(readEnd.Number(), piece.data(), piece.size());
        if (size > 0) {
            text.append(piece.data(), static_cast<std::size_t>(size));
        } else if (size == 0 || errno != EINTR) {
            readEnd.Close();
        }
    }
};

/// What is to be run.
struct Program {
    const char* file;  ///< found as the shell finds it
    std::vector<std::string> arguments;
    int input = -1;  ///< its standard input; none: nothing
};

int Spawn(Program program, const Pipe& out, const Pipe& err, pid_t& process) {
    std::vector<char*> pointers;
    pointers.reserve(program.arguments.size() + 1);
    for (std::string& text : program.arguments) pointers.push_back(text.data());
    pointers.push_back(nullptr);

    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    if (program.input >= 0) {
        posix_spawn_file_actions_adddup2(&files, program.input, STDIN_FILENO);
    } else {
        posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    }
    posix_spawn_file_actions_adddup2(&files, out.writeEnd.Number(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&files, err.writeEnd.Number(), STDERR_FILENO);
    const int error = posix_spawnp(&process, program.file, &files, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    return error;
}

/// Opens a file in memory that holds \p text, to be read from its beginning. \returns 0, or an error.
int OpenText(std::string_view text, Descriptor& file) {
    file.Take(memfd_create("input", MFD_CLOEXEC));
    if (!file.IsOpen()) return errno;
    for (std::string_view rest = text; !rest.empty();) {
        const ssize_t size = write(file.Number(), rest.data(), rest.size());
        if (size < 0 && errno != EINTR) return errno;
        if (size > 0) rest.remove_prefix(static_cast<std::size_t>(size));
    }
    return lseek(file.Number(), 0, SEEK_SET) == 0 ? 0 : errno;
}

/// Reads both streams as they come, so that neither fills up while the other is waited for. Both are closed
/// after that, also where waiting fails: the other process then ends, since nobody reads what it writes.
void ReadBoth(Pipe& out, Pipe& err, SecondRun& run) {
    while (out.readEnd.IsOpen() || err.readEnd.IsOpen()) {
        // Of a closed one the number is negative: it is passed over.
        std::array<pollfd, 2> waiting{pollfd{out.readEnd.Number(), POLLIN, 0},
                                      pollfd{err.readEnd.Number(), POLLIN, 0}};
        if (poll(waiting.data(), waiting.size(), -1) < 0 && errno != EINTR) {
            out.readEnd.Close();
            err.readEnd.Close();
        }
        if (waiting[0].revents != 0) out.Read(run.out);
        if (waiting[1].revents != 0) err.Read(run.err);
    }
}

int StatusOf(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) continue;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

SecondRun Run(Program program) {
    SecondRun run;
    Pipe out;
    Pipe err;
    pid_t process = 0;
    int error = out.Open();
    if (error == 0) error = err.Open();
    if (error == 0) error = Spawn(std::move(program), out, err, process);
    if (error != 0) {
        run.err = std::strerror(error);
        run.isMissing = error == ENOENT;
        return run;
    }
    run.isStarted = true;
    out.writeEnd.Close();
    err.writeEnd.Close();
    ReadBoth(out, err, run);
    run.status = StatusOf(process);
    return run;
}

}  // namespace

SecondRun RunAgain(const std::vector<std::string>& arguments) {
    std::vector<std::string> all{"zandic"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return Run({kThisProgram, std::move(all)});
}

SecondRun RunProgram(const std::string& program, const std::vector<std::string>& arguments,
                     std::string_view input) {
    Descriptor file;
    if (const int error = OpenText(input, file); error != 0) {
        SecondRun run;
        run.err = std::strerror(error);
        return run;
    }
    std::vector<std::string> all{program};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return Run({program.c_str(), std::move(all), file.Number()});
}

}  // namespace tool
