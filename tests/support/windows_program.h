#pragma once

#include <QDir>
#include <QString>

#include <gtest/gtest.h>
#include <string>
#include <windows.h>

/// Simulates what another program does with a file on Windows.
namespace tarvold::testing {

inline std::wstring nativeName(const QString &file)
{
    return QDir::toNativeSeparators(file).toStdWString();
}

/// Another program that has opened a file for reading and writing.
class OtherProgram
{
public:
    /// \param sharing what other programs may do meanwhile, such as FILE_SHARE_READ
    OtherProgram(const QString &file, DWORD sharing)
        : m_handle(::CreateFileW(nativeName(file).c_str(), GENERIC_READ | GENERIC_WRITE, sharing,
                                 nullptr, OPEN_ALWAYS, 0, nullptr))
    {
        EXPECT_NE(m_handle, INVALID_HANDLE_VALUE);
    }
    ~OtherProgram() { ::CloseHandle(m_handle); }
    Q_DISABLE_COPY_MOVE(OtherProgram)

    /// Locks the file as a copy of the program does.
    void lock()
    {
        OVERLAPPED place = {};
        place.OffsetHigh = 256;
        EXPECT_TRUE(::LockFileEx(m_handle, LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &place));
    }

    /// The first bytes of the file, more than any test writes.
    QByteArray read()
    {
        constexpr DWORD kMost = 100;
        QByteArray bytes(kMost, '\0');
        OVERLAPPED place = {};
        DWORD count = 0;
        EXPECT_TRUE(::ReadFile(m_handle, bytes.data(), kMost, &count, &place));
        return bytes.first(count);
    }

    /// Writes at the beginning of the file.
    void write(const QByteArray &bytes)
    {
        OVERLAPPED place = {};
        DWORD count = 0;
        EXPECT_TRUE(::WriteFile(m_handle, bytes.data(), DWORD(bytes.size()), &count, &place));
    }

private:
    HANDLE m_handle;
};

inline constexpr DWORD kSharesAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
inline constexpr DWORD kSharesContent = FILE_SHARE_READ | FILE_SHARE_WRITE;

/// The attributes of a file, such as FILE_ATTRIBUTE_READONLY.
inline DWORD attributesOf(const QString &file)
{
    return ::GetFileAttributesW(nativeName(file).c_str());
}

inline void setAttributes(const QString &file, DWORD attributes)
{
    EXPECT_TRUE(::SetFileAttributesW(nativeName(file).c_str(), attributes));
}

} // namespace tarvold::testing
