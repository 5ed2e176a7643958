#include "dark_desktop.h"

#include "desktop_theme.h"
#include "portable.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPalette>
#include <QStyle>

#include <private/qgenericunixthemes_p.h>
#include <private/qguiapplication_p.h>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

// The portal for settings, which nearly all desktops have.
constexpr auto kService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto kPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto kInterface = "org.freedesktop.portal.Settings"_L1;
constexpr auto kGroup = "org.freedesktop.appearance"_L1;
constexpr auto kKey = "color-scheme"_L1;
constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;

/// The dark colours of Qt's own style, which it takes where a plugin tells it of a dark desktop.
QPalette darkPalette()
{
    const QColor letters(240, 240, 240);
    const QColor faint(130, 130, 130);
    const QColor back(50, 50, 50);
    const QColor mid = back.darker(130);
    QPalette palette(letters, back, back.lighter(150), back.darker(150), mid, letters,
                     back.darker(140));
    palette.setColor(QPalette::Midlight, mid.lighter(110));
    palette.setColor(QPalette::Shadow, back.darker(150).darker(135));
    palette.setColor(QPalette::HighlightedText, letters);
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::Link, QColor(48, 140, 198));
    palette.setColor(QPalette::PlaceholderText, QColor(240, 240, 240, 128));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, back);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(145, 145, 145));
    return palette;
}

/// Whether Qt itself reads the colours of the desktop, which it does on KDE alone.
bool knowsColours()
{
    return dynamic_cast<const QKdeTheme *>(QGuiApplicationPrivate::platformTheme()) != nullptr;
}

/// Whether a theme is dark by its name, such as "Yaru-dark" or "Mint-Y-Dark-Aqua". "Arc-Darker" is
/// light, with dark title bars.
bool isDarkName(const QString &theme)
{
    constexpr auto kDark = "-dark"_L1;
    const qsizetype begin = theme.lastIndexOf(kDark, -1, Qt::CaseInsensitive);
    const qsizetype end = begin + kDark.size();
    return begin >= 0 && (end == theme.size() || !theme.at(end).isLetter());
}

} // namespace

DarkDesktop::DarkDesktop(QObject &owner) : QObject(&owner)
{
    qRegisterMetaType<QDBusVariant>(); // the types of the slot are looked up by name
    // From whatever service: Qt would ask the bus who a named one is, and wait for the answer.
    QDBusConnection::sessionBus().connect(QString(), kPath, kInterface, u"SettingChanged"_s, this,
                                          SLOT(change(QString, QString, QDBusVariant)));
    // Themes change without a word from the portal, or after it.
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &DarkDesktop::apply);
    ask();
    apply();
}

void DarkDesktop::ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(kService, kPath, kInterface, u"Read"_s);
    question << QString(kGroup) << QString(kKey);
    auto *watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> answer = *watcher;
        if (answer.isValid()) { // it is wrapped twice
            change(kGroup, kKey, answer.value().variant().value<QDBusVariant>());
        }
        watcher->deleteLater();
    });
}

void DarkDesktop::change(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group == kGroup && key == kKey) {
        const uint scheme = value.variant().toUInt();
        m_scheme = scheme == kPrefersDark    ? Scheme::Dark
                   : scheme == kPrefersLight ? Scheme::Light
                                             : Scheme::NoPreference;
        apply();
    }
}

bool DarkDesktop::prefersDark() const
{
    // Some desktops tell of darkness by the name of a theme only.
    return m_scheme == Scheme::NoPreference ? isDarkName(themeOfDesktop())
                                            : m_scheme == Scheme::Dark;
}

void DarkDesktop::apply()
{
    const bool isDark = prefersDark();
    if (isDark == m_isDark) {
        return;
    }
    m_isDark = isDark;
    QPalette palette; // of the system
    if (isDark) {
        palette = darkPalette();
        QApplication::style()->polish(palette);
    }
    QApplication::setPalette(palette);
}

void portable::followDarkDesktop(QObject &owner)
{
    if (!knowsColours()) {
        new DarkDesktop(owner);
    }
}

} // namespace tarvold
