#include "look/figures.h"

#include <QFile>
#include <QStringList>

#include <gtest/gtest.h>
#include <map>

namespace tarvold::testing::figures {

using namespace Qt::StringLiterals;

namespace {

struct Worst
{
    double measured;
    double asked;
    QString place;
    int count = 1;
};

using Key = std::pair<QString, QString>; ///< sort and palette

std::map<Key, Worst> &all()
{
    static std::map<Key, Worst> figures;
    return figures;
}

/// Parses the rows "| sort | asked | light | dark | where |" of docs/look.md.
std::map<Key, double> figuresOfDocument()
{
    QFile document(QStringLiteral(TARVOLD_LOOK_DOCUMENT));
    EXPECT_TRUE(document.open(QIODevice::ReadOnly)) << document.errorString().toStdString();
    std::map<Key, double> figures;
    for (const QString &line : QString::fromUtf8(document.readAll()).split(u'\n')) {
        const QStringList cells = line.split(u'|');
        bool isRow = cells.size() == 7;
        const double light = isRow ? cells[3].toDouble(&isRow) : 0;
        if (isRow) {
            const QString sort = cells[1].trimmed();
            figures[{sort, u"light"_s}] = light;
            figures[{sort, u"dark"_s}] = cells[4].toDouble();
        }
    }
    return figures;
}

/// After all tests, writes the worst measurement of each kind to the file named by
/// TARVOLD_LOOK_FIGURES, one per line, and compares them with docs/look.md.
class Report : public ::testing::Environment
{
public:
    void TearDown() override
    {
        if (const QString name = qEnvironmentVariable("TARVOLD_LOOK_FIGURES"); !name.isEmpty()) {
            write(name);
        }
        compareWithDocument();
    }

private:
    static void write(const QString &name)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << file.errorString().toStdString();
        for (const auto &[key, worst] : all()) {
            const QStringList cells = {key.first,
                                       key.second,
                                       QString::number(worst.asked),
                                       QString::number(worst.measured, 'f', 2),
                                       QString::number(worst.count),
                                       worst.place};
            file.write(cells.join(u'\t').toUtf8() + '\n');
        }
    }

    /// The document shows the worst of all screens, scales and sizes; a single run may be better.
    static void compareWithDocument()
    {
        constexpr double kRounding = 0.005;
        const std::map<Key, double> documented = figuresOfDocument();
        for (const auto &[key, worst] : all()) {
            const auto found = documented.find(key);
            if (found == documented.end()) {
                ADD_FAILURE() << "docs/look.md lacks " << key.first.toStdString() << ", "
                              << key.second.toStdString();
            } else {
                EXPECT_LE(found->second, worst.measured + kRounding)
                    << "docs/look.md claims more than was measured: " << key.first.toStdString()
                    << ", " << key.second.toStdString() << ", " << worst.place.toStdString();
            }
        }
    }
};

const ::testing::Environment *const kReport = ::testing::AddGlobalTestEnvironment(new Report);

} // namespace

void expectAtLeast(const Scene &scene, const char *sort, const QString &part, double measured,
                   double asked)
{
    // The caption of a menu item has a tab before its shortcut.
    const QString place = QString(scene.name + u' ' + part).simplified();
    EXPECT_GE(measured, asked) << sort << ": " << place.toStdString() << ", "
                               << scene.palette.toStdString();
    const auto [at, isFirst] =
        all().try_emplace({QLatin1StringView(sort), scene.palette}, Worst{measured, asked, place});
    if (isFirst) {
        return;
    }
    Worst &worst = at->second;
    ++worst.count;
    if (measured < worst.measured) {
        worst.measured = measured;
        worst.place = place;
    }
}

} // namespace tarvold::testing::figures
