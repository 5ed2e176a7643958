#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>
#include <optional>

class QFile;

namespace tarvold::durable {

/// A new file beside an old one, which is to take the old one's name. Until then it goes when this
/// object does, and the old file stays as it is.
class Replacement
{
public:
    /// Why the name could not be taken.
    struct Failure
    {
        QString cause; ///< in words
        bool mayPass;  ///< another program has the old file open: a later try may succeed
    };

    /// \param path with all links followed, as realPathOf() gives it; no file need be there
    explicit Replacement(const QString &path);
    ~Replacement();
    Q_DISABLE_COPY_MOVE(Replacement)

    /// Makes the new file with the rights and attributes of the old one, and brings all its bytes
    /// to the disk.
    /// \return what went wrong, in words
    [[nodiscard]] std::optional<QString> write(QByteArrayView bytes);

    /// Lets the new file take the name in one step.
    /// \param old the open old file with its lock, if there is one. Where the system replaces no
    ///        open file it is closed for that, and left closed.
    [[nodiscard]] std::optional<Failure> takeName(QFile &old);

    /// Brings the name that was taken to the disk.
    /// \return what went wrong, in words
    [[nodiscard]] std::optional<QString> syncName();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace tarvold::durable
