#include "stipulations/stipulation_form.h"

#include "controls/combo_box.h"
#include "controls/controls.h"
#include "controls/message_box.h"
#include "controls/push_button.h"
#include "controls/sizes.h"
#include "datafiles/data_file_kind.h"
#include "datafiles/record.h"
#include "screens/failures.h"
#include "screens/file_facts.h"
#include "screens/keys.h"
#include "screens/main_menu.h"
#include "screens/screens.h"
#include "stipulations/form_tables.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>

#include <algorithm>

namespace tarvold {

using namespace Qt::StringLiterals;

using stipulationform::FormLine;
using stipulationform::kLines;

namespace {

constexpr ControlRef kListPosition = {"Form16", "listpos"};
constexpr char kNo[] = "No";
constexpr char kYes[] = "Yes";

struct ValueRow
{
    const char *label;
    const char *caption;
    const RecordField *stipulationform::ValueColumn::*field;
};

constexpr ValueRow kValueRows[] = {
    {"Label9", "Match Draw Value:", &stipulationform::ValueColumn::draw},
    {"Label14", "Match Entertainment Value:", &stipulationform::ValueColumn::entertainment},
};

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
            const RecordField &field = *(values.*row.field);
            QWidget *combo =
                formgrid::newControl(*this, {.control = stipulationform::controlOf(field),
                                             .label = "",
                                             .caption = field.name,
                                             .items = items});
            // Assistive technology takes the text of a combo box for its name unless a label names
            // it.
            auto *spoken = new QLabel(QLatin1StringView(field.name), column().parentWidget());
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

void Form3::showEvent(QShowEvent *event)
{
    Screen::showEvent(event);
    showTarget();
}

void Form3::showTarget()
{
    const QString name = m_screens.text(Form1::fileNameBox(DataFileKind::Stipulations));
    control<PushButton>("Command2").setPurpose(filefacts::purpose(u"Saves in "_s, name));
}

void Form3::showDefaults(const StipulationTable &table)
{
    m_table = &table;
    warnOfQuality(formgrid::lackingLine());
    for (const FormLine &line : kLines) {
        show(line, line.newValue);
    }
}

void Form3::showRecords(const StipulationTable &table, const std::vector<int> &indexes)
{
    m_table = &table;
    warnOfQuality(u"Not in the list. The file keeps what it has."_s);
    for (int offset = 0; const FormLine &line : kLines) {
        // A line that cannot be shown leaves what the stipulation before it showed. Backwards, to
        // set each control once: a hand-made file may have thousands that look the same.
        auto index = indexes.rbegin();
        while (index != indexes.rend() && !show(line, table.line(*index + offset))) {
            ++index;
        }
        ++offset;
    }
}

void Form3::warnOfQuality(const QString &warning)
{
    control<ComboBox>("matchquality").markUnlisted(warning);
}

bool Form3::show(const FormLine &line, QByteArrayView bytes)
{
    const std::optional<QString> shown = textOf(line.field->coding, bytes);
    if (!shown) {
        return false;
    }
    const Coding coding = line.field->coding;
    if (coding == Coding::Number) {
        showNumber(line.control, *shown);
    } else if (coding == Coding::NoOrText) {
        const bool isNo = *shown == QLatin1StringView(kNo);
        setText("exclusive", QLatin1StringView(isNo ? kNo : kYes));
        setText(line.control, isNo ? QString() : *shown);
    } else if (line.control != nullptr) {
        setText(line.control, *shown);
    }
    return true;
}

void Form3::showNumber(const char *control, const QString &text)
{
    auto &bar = this->control<QScrollBar>(control);
    bar.setValue(qBound(bar.minimum(), controls::numericValue(text), bar.maximum()));
    setText("risk", text + u'%');
}

QString Form3::textFor(const FormLine &line) const
{
    if (line.control == nullptr) {
        return {};
    }
    const bool isNo =
        line.field->coding == Coding::NoOrText && text("exclusive") == QLatin1StringView(kNo);
    return isNo ? QLatin1StringView(kNo) : text(line.control);
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

std::optional<QByteArrayView> Form3::loadedLine(int offset) const
{
    const QString position = m_screens.text(kListPosition);
    if (position == QLatin1StringView(kNew)) {
        return std::nullopt;
    }
    return m_table->line(controls::numericValue(position) + offset);
}

codepage::Encoded Form3::encoded(int offset, const QString &line) const
{
    const auto loaded = loadedLine(offset);
    const bool isUnchanged = loaded && line == codepage::decode(*loaded);
    return isUnchanged ? codepage::Encoded{loaded->toByteArray(), {}} : encodeLine(line);
}

std::optional<StipulationTable::Record> Form3::composed()
{
    StipulationTable::Record record;
    for (int offset = 0; const FormLine &line : kLines) {
        if (const auto text = lineOf(line.field->coding, textFor(line))) {
            const codepage::Encoded bytes = encoded(offset, *text);
            if (bytes.missing) {
                const MissingCharacter missing = {QLatin1StringView(line.field->name),
                                                  *bytes.missing};
                messagebox::notice(this, u"Stipulations Editor"_s, failures::cannotHold(missing));
                return std::nullopt;
            }
            record.at(std::size_t(offset)) = bytes.bytes;
        }
        ++offset;
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
        showTarget(); // if the file could not be written, it may be another one now
    }
}

} // namespace tarvold
