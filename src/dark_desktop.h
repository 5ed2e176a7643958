#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>

namespace tarvold {

/// Follows the settings by which desktops tell programs to be dark.
class DarkDesktop : public QObject
{
    Q_OBJECT
public:
    explicit DarkDesktop(QObject &owner);

private slots:
    /// A setting of the desktop has changed.
    void change(const QString &group, const QString &key, const QDBusVariant &value);

private:
    enum class Scheme { NoPreference, Dark, Light };

    void ask();
    void apply();
    bool prefersDark() const;

    Scheme m_scheme = Scheme::NoPreference; ///< as far as the desktop has told
    bool m_isDark = false;                  ///< what is applied
};

} // namespace tarvold
