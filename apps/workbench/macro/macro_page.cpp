#include "workbench/macro/macro_page.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>

#include "core_api/text/text_helpers.h"
#include "mapping/mapping_file.h"
#include "mapping/tw_ss_mapping.h"
#include "mapping_dialog/start_mapping_dialog.h"
#include "platform/window/message_box.h"
#include "runs/library_standards.h"
#include "workbench/macro/kind_words.h"
#include "workbench/run/calculation_view.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"
#include "workbench/words/workbench_words.h"

namespace {

enum ObjectColumn { objectColumn, kindColumn, valueColumn, objectColumns };

QString nameOf(const TwObjectMap& object) {
    const Vor_String& group = object.group();
    const bool hasBoth = !group.isEmpty() && !object.objectName().isEmpty();
    return toQt(group.str() + (hasBoth ? "." : "") + object.objectName().str());
}

}  // namespace

MacroPage::MacroPage(std::unique_ptr<runs::MacroRun> macro, QWidget* parent)
    : QWidget(parent), m_macro(std::move(macro)) {
    m_message = new QLabel;
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_message->hide();
    m_objects = new QTableWidget(0, objectColumns);
    m_objects->setObjectName("macroObjects");
    m_objects->setHorizontalHeaderLabels({uiText(wordObject), uiText(wordKind), uiText(wordValue)});
    m_objects->verticalHeader()->hide();
    m_objects->verticalHeader()->setDefaultSectionSize(22);
    m_objects->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_objects->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_objects->horizontalHeader()->setStretchLastSection(true);

    auto* both = new QSplitter(Qt::Horizontal);
    both->addWidget(m_objects);
    both->addWidget(makeCalculationView(m_model));
    both->setStretchFactor(0, 1);
    both->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeHeading());
    layout->addWidget(makeRunBar());
    layout->addWidget(m_message);
    layout->addWidget(both, 1);
    fillStandards();
    fillObjects();
}

QWidget* MacroPage::makeHeading() {
    auto* heading = new QWidget;
    auto* layout = new QHBoxLayout(heading);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* name = new QLabel(toQt(removeExtension(getFileName(m_macro->path()))));
    QFont font = dialogFont();
    font.setPixelSize(18);
    font.setBold(true);
    name->setFont(font);
    layout->addWidget(name, 1);
    auto* attach = new QPushButton(uiText(wordMap));
    attach->setObjectName("attachStandards");
    connect(attach, &QPushButton::clicked, this, [this] { attachStandards(); });
    layout->addWidget(attach);
    m_save = new QPushButton(uiText(wordSaveMacro));
    m_save->setEnabled(false);
    connect(m_save, &QPushButton::clicked, this, [this] { save(); });
    layout->addWidget(m_save);
    return heading;
}

QWidget* MacroPage::makeRunBar() {
    auto* bar = new QWidget;
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    m_standard = new QComboBox;
    m_standard->setMinimumWidth(180);
    m_key = new QComboBox;
    m_key->setEditable(true);
    m_key->setMinimumWidth(240);
    connect(m_standard, &QComboBox::currentTextChanged, this, [this] { fillKeys(); });
    // A calculation never stands under the name of another standard or key than its own.
    for (const QComboBox* choice : {m_standard, m_key})
        connect(choice, &QComboBox::currentTextChanged, this, [this] {
            m_model.show(nullptr);
            show({}, false);
        });
    auto* run = new QPushButton(uiText(wordRun));
    run->setObjectName("runOnMacro");
    connect(run, &QPushButton::clicked, this, [this] { this->run(); });
    layout->addWidget(new QLabel(uiText(wordStandard)));
    layout->addWidget(m_standard);
    layout->addWidget(new QLabel(uiText(wordMapsTo)));
    layout->addWidget(m_key, 1);
    layout->addWidget(run);
    return bar;
}

// The attached ones first, in their order, then the rest of the library.
void MacroPage::fillStandards() {
    const QString before = m_standard->currentText();
    m_standard->clear();
    QStringList names;
    for (const Vor_String& name : m_macro->macro().macroRead()->standards().standardsNames())
        names += toQt(name);
    for (const auto& standard : runs::libraryStandards()) names += toQt(standard.name);
    names.removeDuplicates();
    m_standard->addItems(names);
    if (const int index = m_standard->findText(before); index >= 0)
        m_standard->setCurrentIndex(index);
    fillKeys();
}

void MacroPage::fillKeys() {
    m_key->clear();
    const std::string standard = fromQt(m_standard->currentText());
    const TabMappingData& attached = m_macro->macro().macroRead()->standards();
    QStringList keys;
    for (int row = 0; row < attached.length(); ++row)
        if (attached.standardsNames()[row].equal(standard))
            keys += toQt(attached.mappingKeys()[row]);
    for (const Vor_String& key : runs::mappingKeys(standard)) keys += toQt(key);
    for (const Vor_String& group : m_macro->macro().macroRead()->getModuleGroups())
        keys += "Module." + toQt(group);
    keys.removeDuplicates();
    m_key->addItems(keys);
}

void MacroPage::choose(const QString& standard, const QString& key) {
    m_standard->setCurrentText(standard);
    m_key->setCurrentText(key);
}

void MacroPage::fillObjects() {
    TwSSMapping all;
    all.initAllVarsFromMacro(&m_macro->macro(), &m_macro->transaction());
    const auto& objects = all.mappedObjects();
    m_objects->setRowCount(objects.length());
    for (int row = 0; row < objects.length(); ++row) {
        const TwObjectMap& object = objects[row];
        Vor_String value;
        object.getMacroVarValue(&m_macro->macro(), &m_macro->macroData(), value,
                                &m_macro->transaction());
        const QTableWidgetItem* shownBefore = m_objects->item(row, objectColumn);
        const bool isSame = shownBefore && shownBefore->text() == nameOf(object);
        const QString before = isSame ? m_objects->item(row, valueColumn)->text() : QString();
        m_objects->setItem(row, objectColumn, new QTableWidgetItem(nameOf(object)));
        m_objects->setItem(row, kindColumn, new QTableWidgetItem(kindWord(object.kind())));
        auto* shown = new QTableWidgetItem(toQt(value));
        QFont font = dialogFont();
        font.setBold(!before.isEmpty() && before != shown->text());
        shown->setFont(font);  // what the run changed stands out
        m_objects->setItem(row, valueColumn, shown);
    }
    m_objects->resizeColumnsToContents();
}

QString MacroPage::value(const QString& object) const {
    for (int row = 0; row < m_objects->rowCount(); ++row)
        if (m_objects->item(row, objectColumn)->text() == object)
            return m_objects->item(row, valueColumn)->text();
    return {};
}

bool MacroPage::run() {
    m_model.show(nullptr);
    m_report = {};
    const std::string standard = fromQt(m_standard->currentText());
    m_report.path = (standardsFolder() + standard + ".tws").str();
    const bool isBegun = m_macro->run(standard, fromQt(m_key->currentText()), {}, {}, m_report);
    m_calculation = runs::makeCalculation(m_report);
    m_model.show(&m_calculation);
    fillObjects();
    setChanged(isBegun && m_report.outputsDone());
    showReport();
    return m_isChanged;
}

void MacroPage::showReport() {
    QStringList lines;
    if (!m_report.failure.isEmpty()) lines += toQt(m_report.failure);
    for (const auto& message : m_report.messages)
        for (const std::string& line : message)
            if (!line.empty()) lines += toQt(line);
    lines.removeDuplicates();
    const bool isWell = lines.isEmpty() && m_report.allWell();
    show(isWell ? uiText(wordAllWell) : lines.join("\n"), !isWell);
}

void MacroPage::show(const QString& text, bool isFailure) {
    m_message->setText(shownMessage(text));
    m_message->setStyleSheet(isFailure ? "color: #A00000; background: #FFE8E8; padding: 4px"
                                       : "color: #006000; background: #E8FFE8; padding: 4px");
    m_message->setVisible(!text.isEmpty());
}

void MacroPage::attachStandards() {
    bool isChanged = false;
    if (!startMappingDialog(m_macro->macro(), isChanged) || !isChanged) return;
    // Saving after a run writes the dialog data, which must know them too.
    m_macro->macroData().mappingData() = makeMacroData(m_macro->macro()).mappingData();
    noteChange();
}

void MacroPage::noteChange() {
    fillStandards();
    fillObjects();
    setChanged(true);
}

/// Results that were made from inputs without a value are written when the user says so.
bool MacroPage::mayWriteUnread() const {
    if (m_report.unreadInputs.empty()) return true;
    QStringList inputs;
    for (const std::string& input : m_report.unreadInputs) inputs += toQt(input);
    const std::string asked = fromQt(uiText(wordWriteUnread).arg(inputs.join("\n")));
    return showMessage({"Vormant", asked, MessageIcon::exclamation, MessageButtons::yesNo}) ==
           IDYES;
}

bool MacroPage::save() {
    Vor_String failure;
    const bool isRun = !m_report.equations.empty();
    if (isRun && m_report.outputsDone() && !mayWriteUnread()) return false;
    const auto saved = isRun ? m_macro->save(m_report, runs::MacroRun::Unread::written, failure)
                             : m_macro->saveAsIs(failure);
    if (saved == OpenFile::Saved::reload) return reload(), false;
    if (saved == OpenFile::Saved::yes)
        setChanged(false);
    else if (!failure.isEmpty())
        show(toQt(failure), true);
    return saved == OpenFile::Saved::yes;
}

/// What another program wrote, in place of what is shown. Results of a run before are not its own.
void MacroPage::reload() {
    Vor_String failure;
    if (!load(failure)) show(toQt(failure), true);
}

void MacroPage::followFile() {
    if (!m_macro->noticeChange()) return;
    if (m_isChanged) return show(uiText(wordFileChanged), true);
    Vor_String failure;
    if (load(failure))
        show(uiText(wordFileReloaded), false);
    else
        show(uiText(wordFileUnreadable).arg(toQt(failure)), true);
}

bool MacroPage::load(Vor_String& failure) {
    auto macro = runs::MacroRun::open(m_macro->path(), failure);
    if (!macro) return false;
    m_macro = std::move(macro);
    m_model.show(nullptr);
    m_report = {};
    fillStandards();
    m_objects->setRowCount(0);
    fillObjects();
    setChanged(false);
    show({}, false);
    return true;
}

void MacroPage::setChanged(bool changed) {
    m_isChanged = changed;
    m_save->setEnabled(changed);
}
