#include "screens/screens.h"

#include <algorithm>

namespace tarvold {

Screen &Screens::operator[](const std::string &name)
{
    if (const auto found = m_screens.find(name); found != m_screens.end()) {
        return *found->second;
    }
    const auto maker = m_makers.find(name);
    if (maker == m_makers.end()) {
        qFatal("there is no screen %s", name.c_str());
    }
    Screen &screen = *(m_screens[name] = maker->second());
    emit created(&screen);
    return screen;
}

Screen *Screens::shown() const
{
    const auto found = std::find_if(m_screens.begin(), m_screens.end(),
                                    [](const auto &each) { return each.second->isVisible(); });
    return found == m_screens.end() ? nullptr : found->second.get();
}

QString Screens::text(ControlRef ref)
{
    return (*this)[ref.screen].text(ref.control);
}

void Screens::setText(ControlRef ref, const QString &text)
{
    (*this)[ref.screen].setText(ref.control, text);
}

void Screens::apply(std::span<const Preset> presets)
{
    for (const Preset &preset : presets) {
        setText(preset.control, QLatin1StringView(preset.value));
    }
}

} // namespace tarvold
