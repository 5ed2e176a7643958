#include "odd/odd_files.h"

#include "support/folder_test.h"

#include <cstring>
#include <ostream>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace tarvold::testing {
namespace {

constexpr char kFolder[] = "It is a folder.";
constexpr char kNotOrdinary[] = "It is not an ordinary file.";
constexpr char kNoName[] = "holds a character that no file name can have";

bool nothing()
{
    return true;
}

bool makeSocket()
{
    const int handle = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strcpy(address.sun_path, "x.tvd");
    const bool made =
        ::bind(handle, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    ::close(handle);
    return made;
}

/// A file that a name with a NUL would wrongly refer to if it were truncated.
bool makeBystander()
{
    writeFile("x", "not to be touched");
    return true;
}

QString named(const char *name)
{
    return QString::fromUtf8(name);
}

} // namespace

void PrintTo(const OddFile &odd, std::ostream *out)
{
    *out << odd.name;
}

const std::vector<OddFile> &oddFiles()
{
    static const QString x = named("x.tvd");
    static const std::vector<OddFile> all = {
        {"Folder", x, [] { return ::mkdir("x.tvd", 0755) == 0; }, kFolder},
        {"FolderByLink", x, [] { return ::symlink(".", "x.tvd") == 0; }, kFolder},
        {"Pipe", x, [] { return ::mkfifo("x.tvd", 0600) == 0; }, kNotOrdinary},
        {"PipeByLink", x,
         [] { return ::mkfifo("pipe", 0600) == 0 && ::symlink("pipe", "x.tvd") == 0; },
         kNotOrdinary},
        {"Socket", x, makeSocket, kNotOrdinary},
        {"DevZero", x, [] { return ::symlink("/dev/zero", "x.tvd") == 0; }, kNotOrdinary},
        {"DevFull", x, [] { return ::symlink("/dev/full", "x.tvd") == 0; }, kNotOrdinary},
        {"DevNull", x, [] { return ::symlink("/dev/null", "x.tvd") == 0; }, kNotOrdinary},
        {"Terminal", x, [] { return ::symlink("/dev/tty", "x.tvd") == 0; }, kNotOrdinary},
        {"LinkToItself", x, [] { return ::symlink("x.tvd", "x.tvd") == 0; },
         "Its symbolic links lead in a circle."},
        {"LinkIntoNowhere", x, [] { return ::symlink("missing/x", "x.tvd") == 0; },
         "does not exist."},
        {"InAMissingFolder", named("missing/x.tvd"), nothing, "does not exist."},
        {"BelowAFile", named("x/x.tvd"), makeBystander,
         "A part of its path is a file and no folder."},
        {"TooLong", QString(300, u'x') + x, nothing, "Its name or path is too long."},
        {"TooLongAPath", named("folder/").repeated(1000) + x, nothing,
         "Its name or path is too long."},
        {"NulInTheName", named("x") + QChar(0) + named(".tvd"), makeBystander, kNoName},
        {"HalfACharacterInTheName", named("x") + QChar(0xD800) + named(".tvd"), makeBystander,
         kNoName},
    };
    return all;
}

std::string wholeFolder()
{
    std::string all;
    for (const QString &name : folderEntries()) {
        const QByteArray path = QFile::encodeName(name);
        struct stat state = {};
        EXPECT_EQ(::lstat(path.constData(), &state), 0) << path.toStdString();
        all += path.toStdString() + ' ' + std::to_string(state.st_mode) + ' ' +
               std::to_string(state.st_ino) + ' ' + std::to_string(state.st_mtim.tv_sec) + '.' +
               std::to_string(state.st_mtim.tv_nsec) + '\n';
        if (S_ISLNK(state.st_mode)) {
            all += QFileInfo(name).symLinkTarget().toStdString();
        }
        if (S_ISREG(state.st_mode)) {
            all += bytesIn(name).toStdString();
        }
    }
    return all;
}

} // namespace tarvold::testing
