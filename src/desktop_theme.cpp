#include "desktop_theme.h"

#include <QByteArray>
#include <QDataStream>
#include <QGuiApplication>
#include <QIODevice>
#include <qpa/qplatformnativeinterface.h>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace tarvold {

namespace {

struct Free
{
    void operator()(void *reply) const
    {
        std::free(reply); // NOLINT(*-no-malloc,*-owning-memory): libxcb allocates so
    }
};
template <typename Type>
using Reply = std::unique_ptr<Type, Free>;

xcb_atom_t atom(xcb_connection_t *display, QByteArrayView name)
{
    const auto asked = xcb_intern_atom(display, 1, static_cast<uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(display, asked, nullptr));
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

/// The name of the selection that the manager of the settings owns; each screen has one.
QByteArray selection()
{
    auto *screen =
        QGuiApplication::platformNativeInterface()->nativeResourceForIntegration("x11screen");
    return "_XSETTINGS_S" + QByteArray::number(reinterpret_cast<qintptr>(screen));
}

/// The settings as their manager shows them, in the format of XSETTINGS.
QByteArray settings(xcb_connection_t *display)
{
    const auto asked = xcb_get_selection_owner(display, atom(display, selection()));
    const Reply<xcb_get_selection_owner_reply_t> manager(
        xcb_get_selection_owner_reply(display, asked, nullptr));
    if (!manager || manager->owner == XCB_WINDOW_NONE) {
        return {};
    }
    constexpr uint32_t kMostWords = 65536;
    const auto property =
        xcb_get_property(display, 0, manager->owner, atom(display, "_XSETTINGS_SETTINGS"),
                         XCB_ATOM_ANY, 0, kMostWords);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(display, property, nullptr));
    if (!reply) {
        return {};
    }
    return {static_cast<const char *>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

/// Reads bytes that are filled up to a multiple of four.
QByteArray readPadded(QDataStream &stream, quint32 length)
{
    if (stream.device()->bytesAvailable() < length) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return {};
    }
    const QByteArray bytes = stream.device()->read(length);
    stream.skipRawData(static_cast<int>((4 - length % 4) % 4));
    return bytes;
}

/// The value of a setting that is a text; empty if there is none.
QString textIn(const QByteArray &settings, QByteArrayView wanted)
{
    enum Type : quint8 { Number, Text, Colour };
    QDataStream stream(settings);
    quint8 order = 0;
    stream >> order;
    stream.setByteOrder(order == 0 ? QDataStream::LittleEndian : QDataStream::BigEndian);
    stream.skipRawData(7); // padding, and the serial number of all
    quint32 count = 0;
    stream >> count;
    for (; count > 0 && stream.status() == QDataStream::Ok; --count) {
        quint8 type = 0;
        quint8 padding = 0;
        quint16 length = 0;
        quint32 serial = 0;
        stream >> type >> padding >> length;
        const QByteArray name = readPadded(stream, length);
        stream >> serial;
        if (type != Text) {
            stream.skipRawData(type == Number ? 4 : 8);
            continue;
        }
        quint32 size = 0;
        stream >> size;
        const QByteArray value = readPadded(stream, size);
        if (name == wanted) {
            return QString::fromUtf8(value);
        }
    }
    return {};
}

} // namespace

QString themeOfDesktop()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? QString() : textIn(settings(x11->connection()), "Net/ThemeName");
}

} // namespace tarvold
