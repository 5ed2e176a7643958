#include "stipulations/stipulation_form.h"

#include "controls/combo_box.h"
#include "controls/controls.h"
#include "controls/message_box.h"
#include "controls/push_button.h"
#include "controls/sizes.h"
#include "datafiles/record.h"
#include "screens/failures.h"
#include "screens/keys.h"
#include "screens/screens.h"
#include "stipulations/form_tables.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>

#include <algorithm>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr ControlRef kListPosition = {"Form16", "listpos"};
constexpr char kNo[] = "No";
constexpr char kYes[] = "Yes";

struct ValueRow
{
    const char *label;
    const char *caption;
    const char *stipulationform::ValueColumn::*control;
};

constexpr ValueRow kValueRows[] = {
    {"Label9", "Match Draw Value:", &stipulationform::ValueColumn::draw},
    {"Label14", "Match Entertainment Value:", &stipulationform::ValueColumn::entertainment},
};

/// What the quality combo box shows for a word of the file; nothing for an unknown one.
const char *qualityItem(QByteArrayView word)
{
    for (const stipulationform::QualityWord &quality : stipulationform::kQualities) {
        if (word == QByteArrayView(quality.word)) {
            return quality.item;
        }
    }
    return nullptr;
}

} // namespace

Form3::Form3(Screens &screens) : Screen(kName), m_screens(screens)
{
    setSpokenTitle(u"Match Stipulation"_s);
    addForm();
    column().addStretch();
    addButtons();
    connect(&control<ComboBox>("exclusive"), &ComboBox::chosen, this, [this] {
        if (text("exclusive") == QLatin1StringView(kNo)) {
            setText("prominitials", {});
        }
    });
}

void Form3::addForm()
{
    column().addLayout(formgrid::build(*this, stipulationform::upperFields(), nullptr));
    addValueTable();
    column().addLayout(formgrid::build(*this, stipulationform::lowerFields(), nullptr));
}

void Form3::addValueTable()
{
    using stipulationform::kValueColumns;
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kRowGap);
    grid->setColumnMinimumWidth(0, formgrid::labelWidth(*this));
    for (int place = 1; const stipulationform::ValueColumn &column : kValueColumns) {
        QLabel *heading = newLabel(column.label, column.caption);
        heading->setWordWrap(true);
        grid->addWidget(heading, 0, place, Qt::AlignBottom);
        grid->setColumnStretch(place++, 1);
    }
    // Tab follows the order in which controls are made: row by row.
    for (const ValueRow &row : kValueRows) {
        const int line = grid->rowCount();
        grid->addWidget(newLabel(row.label, row.caption), line, 0);
        for (int place = 1; const stipulationform::ValueColumn &values : kValueColumns) {
            const Items items = stipulationform::valueItems(values.offersNa);
            QWidget *combo = formgrid::newControl(*this, {.control = values.*row.control,
                                                          .label = "",
                                                          .caption = row.caption,
                                                          .items = items});
            const QString name =
                QLatin1StringView(row.caption) + u' ' + QLatin1StringView(values.caption);
            controls::describe(*combo, name);
            // A combo box bears its text for a name; only a label of its own names it to all.
            auto *spoken = new QLabel(name, column().parentWidget());
            spoken->hide();
            spoken->setBuddy(combo);
            grid->addWidget(combo, line, place++);
        }
    }
    column().addLayout(grid);
}

void Form3::addButtons()
{
    PushButton *cancel = newButton("Command1", "Cancel And Return To Menu");
    PushButton *save = newButton("Command2", "Save This Stipulation");
    save->setKeys(keys::save());
    addButtonRow({cancel}, {save});
    connect(cancel, &QPushButton::clicked, this, &Screen::backPressed);
    connect(this, &Screen::closeRequested, this, &Screen::backPressed);
    connect(save, &QPushButton::clicked, this, &Form3::save);
}

QWidget *Form3::firstField() const
{
    return &control("matchtype");
}

void Form3::showDefaults(const StipulationTable &table)
{
    m_table = &table;
    for (const stipulationform::PlainLine &plain : stipulationform::kPlainLines) {
        setText(plain.control, QLatin1StringView(plain.newValue));
    }
    showInjuryRisk(u"5"_s);
    showExclusive(QLatin1StringView(kNo));
    setText("matchquality", QLatin1StringView(stipulationform::kQualities.front().item));
}

void Form3::showRecords(const StipulationTable &table, const std::vector<int> &indexes)
{
    m_table = &table;
    const auto line = [&table, last = indexes.back()](int number) {
        return codepage::decode(table.line(last + number - 1));
    };
    for (const stipulationform::PlainLine &plain : stipulationform::kPlainLines) {
        setText(plain.control, line(plain.line));
    }
    showInjuryRisk(line(8));
    showExclusive(line(17));
    showQuality(indexes);
}

void Form3::showInjuryRisk(const QString &line)
{
    auto &bar = control<QScrollBar>("HScroll1");
    bar.setValue(qBound(bar.minimum(), controls::numericValue(line), bar.maximum()));
    setText("risk", line + u'%');
}

void Form3::showExclusive(const QString &line)
{
    const bool isExclusive = line != QLatin1StringView(kNo);
    setText("exclusive", QLatin1StringView(isExclusive ? kYes : kNo));
    setText("prominitials", isExclusive ? line : QString());
}

void Form3::showQuality(const std::vector<int> &indexes)
{
    const auto itemOf = [this](int index) { return qualityItem(m_table->line(index + 17)); };
    // Backwards, to set the box once: a hand-made file may have thousands that look the same.
    const auto last = std::find_if(indexes.rbegin(), indexes.rend(), itemOf);
    if (last != indexes.rend()) {
        setText("matchquality", QLatin1StringView(itemOf(*last)));
    }
}

std::optional<QString> Form3::qualityLine() const
{
    for (const auto &[item, word] : stipulationform::kQualities) {
        if (text("matchquality") == QLatin1StringView(item)) {
            return QLatin1StringView(word);
        }
    }
    return std::nullopt;
}

int Form3::countDuplicates() const
{
    const auto matchType = codepage::encode(text("matchtype"));
    const auto name = codepage::encode(text("stipulation"));
    if (matchType.missing || name.missing) {
        return 0; // no file holds such a text
    }
    const int edited = controls::numericValue(m_screens.text(kListPosition)); // 0 for a new one
    return m_table->countKey(matchType.bytes, name.bytes, edited);
}

bool Form3::passesChecks()
{
    bool passed = true;
    const auto refuse = [this, &passed](const char *title, const char *message) {
        messagebox::notice(this, QLatin1StringView(title), QLatin1StringView(message));
        passed = false;
    };
    for (int count = countDuplicates(); count > 0; --count) {
        refuse("Duplication!", "This match type/stipulation combination already exists in the file "
                               "you are editting.");
    }
    if (text("stipulation").isEmpty()) {
        refuse("No Stipulation Stated", "Stipulation cannot be left blank!");
    }
    if (text("exclusive") == QLatin1StringView(kYes) && text("prominitials").isEmpty()) {
        refuse("Exclusive To Who?",
               "You have stated that this stipulation is exclusive to a promotion, but you haven't "
               "entered the initials of that promotion!");
    }
    return passed;
}

std::optional<QByteArrayView> Form3::loadedLine(int number) const
{
    const QString position = m_screens.text(kListPosition);
    if (position == QLatin1StringView(kNew)) {
        return std::nullopt;
    }
    return m_table->line(controls::numericValue(position) + number - 1);
}

codepage::Encoded Form3::encoded(int number, const QString &text) const
{
    const auto loaded = loadedLine(number);
    const bool isUnchanged = loaded && text == codepage::decode(*loaded);
    return isUnchanged ? codepage::Encoded{loaded->toByteArray(), {}} : encodeLine(text);
}

std::optional<StipulationTable::Record> Form3::composed()
{
    StipulationTable::Record record;
    std::optional<MissingCharacter> missing;
    const auto put = [this, &record, &missing](int line, const char *control, const QString &text) {
        const codepage::Encoded bytes = encoded(line, text);
        if (bytes.missing && !missing) {
            missing = {this->control(control).accessibleName(), *bytes.missing};
        }
        record.at(std::size_t(line - 1)) = bytes.bytes;
    };
    for (const stipulationform::PlainLine &plain : stipulationform::kPlainLines) {
        put(plain.line, plain.control, text(plain.control));
    }
    record.at(5) = kNo; // line 6 is reserved
    put(8, "HScroll1", text("HScroll1"));
    const bool isForAll = text("exclusive") == QLatin1StringView(kNo);
    put(17, "prominitials", isForAll ? QString(QLatin1StringView(kNo)) : text("prominitials"));
    if (const auto quality = qualityLine()) {
        put(18, "matchquality", *quality);
    }
    if (missing) {
        messagebox::notice(this, u"Stipulations Editor"_s, failures::cannotHold(*missing));
        return std::nullopt;
    }
    return record;
}

void Form3::save()
{
    if (!passesChecks()) {
        return;
    }
    if (const auto record = composed()) {
        emit submitted(*record);
    }
}

} // namespace tarvold
