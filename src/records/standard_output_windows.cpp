#include "records/standard_output.h"

#include <windows.h>

/// A program with windows has no console of its own on Windows. It writes to the file or program
/// that its output was redirected to, else to the console of the program that started it.
namespace tarvold::records::standardoutput {

namespace {

bool isUsable(HANDLE handle)
{
    return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

/// The console of the program that started this one.
HANDLE parentConsole()
{
    static const HANDLE console = [] {
        AttachConsole(ATTACH_PARENT_PROCESS); // fails where this program has a console already
        return CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                           FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    }();
    return console;
}

bool writeBytes(HANDLE handle, const QByteArray &bytes)
{
    DWORD written = 0;
    const auto length = static_cast<DWORD>(bytes.size());
    return WriteFile(handle, bytes.constData(), length, &written, nullptr) != FALSE &&
           written == length;
}

bool write(DWORD which, const QString &text)
{
    HANDLE handle = GetStdHandle(which);
    if (!isUsable(handle)) {
        handle = parentConsole();
    }
    if (!isUsable(handle)) {
        return false;
    }
    const QString line = text + u"\r\n";
    DWORD mode = 0;
    if (GetConsoleMode(handle, &mode) == FALSE) { // a file or another program
        return writeBytes(handle, line.toUtf8());
    }
    DWORD written = 0;
    return WriteConsoleW(handle, line.utf16(), static_cast<DWORD>(line.size()), &written,
                         nullptr) != FALSE;
}

} // namespace

bool writeLine(const QString &text)
{
    return write(STD_OUTPUT_HANDLE, text);
}

void writeErrorLine(const QString &text)
{
    write(STD_ERROR_HANDLE, text); // there is nowhere to say that this failed
}

} // namespace tarvold::records::standardoutput
