#include "workbench/module/starters_menu.h"

#include <QMenu>
#include <algorithm>

#include "core_api/texts/texts.h"
#include "platform/host/host.h"
#include "workbench/module/starts.h"
#include "workbench/window/dialog_font.h"
#include "workbench/window/ui_text.h"

namespace {

using Group = Starter::Group;

constexpr int firstGroupText = 24000, firstOutcomeText = 24010;
constexpr Group groups[] = {Group::macros,    Group::tables,    Group::sections,
                            Group::buildings, Group::standards, Group::other};

constexpr Starter all[] = {
    {Group::macros, 24030, starts::macro},
    {Group::macros, 24031, starts::macroModeless},
    {Group::macros, 24032, starts::takeMacroData},
    {Group::macros, 24033, starts::endMacroModeless},
    {Group::macros, 24034, starts::destroyAllMacros},
    {Group::macros, 24035, starts::constraintsModal},
    {Group::macros, 24036, starts::constraints},
    {Group::macros, 24037, starts::endConstraints},
    {Group::macros, 24038, starts::macroCuts},
    {Group::macros, 24039, starts::advancedProfiles},
    {Group::macros, 24040, starts::profilesOfObjects},
    {Group::macros, 24041, starts::array},
    {Group::macros, 24042, starts::selectMacro},
    {Group::macros, 24043, starts::selectMacroWithStandards},
    {Group::macros, 24044, starts::generalVariables},
    {Group::macros, 24045, starts::designer},
    {Group::macros, 24046, starts::imageDialogNames},
    {Group::tables, 24050, starts::grid},
    {Group::tables, 24051, starts::readSheetFile},
    {Group::tables, 24052, starts::formulas},
    {Group::tables, 24053, starts::evaluate},
    {Group::sections, 24060, starts::sectionLibrary},
    {Group::sections, 24061, starts::sectionSize},
    {Group::sections, 24062, starts::memberCuts},
    {Group::sections, 24063, starts::memberFeatures},
    {Group::sections, 24064, starts::cuttingStock},
    {Group::sections, 24067, starts::saveCuttingStock},
    {Group::sections, 24065, starts::cis2},
    {Group::sections, 24066, starts::dstvPoints},
    {Group::buildings, 24070, starts::constructionGrid},
    {Group::buildings, 24071, starts::levels},
    {Group::buildings, 24072, starts::cladding},
    {Group::buildings, 24073, starts::bracing},
    {Group::standards, 24080, starts::attachStandards},
    {Group::standards, 24081, starts::runStandard},
    {Group::standards, 24082, starts::selfTest},
    {Group::other, 24090, starts::lookUp},
    {Group::other, 24091, starts::selectImage},
};

}  // namespace

std::span<const Starter> starters() {
    return all;
}

Outcome start(const Starter& starter, ModuleData& data) {
    const Outcome outcome = starter.start(data);
    acutPrint(fromQt(uiTitle(starter.title)) + ": " +
              dialString(firstOutcomeText + static_cast<int>(outcome)).str() + "\n");
    return outcome;
}

void addStarters(QMenu& menu, ModuleData& data) {
    for (const Group group : groups) {
        QMenu* sub = menu.addMenu(uiText(firstGroupText + static_cast<int>(group)));
        for (const Starter& each : all)
            if (each.group == group)
                sub->addAction(uiText(each.title), sub, [&each, &data] { start(each, data); });
    }
}
