// A small host of the module: it installs its services, runs a standard on a macro of its own, lets
// a script answer a dialog, hears how a modeless dialog ended, and makes a bill.
//
//     host_example LIBRARY BILL       the library folder; the document to write, ending in ".sss"
#include <vormant/vormant.h>

#include <iostream>
#include <stdexcept>

namespace {

/// The services that the module asks its host for. This one has no screen: its window is never
/// shown, and a ScriptedUser answers the dialogs.
class ExampleHost : public Host {
  public:
    ExampleHost() { m_window.create({"Host", "", {0, 0, 800, 600}, 0, 0, true}, nullptr); }

    void print(std::string_view text) override { std::cout << "module: " << text; }
    void postCommandPrompt() override { std::cout << "prompt\n"; }
    CWnd* mainWindow() override { return &m_window; }

    /// The dialog that was opened last; null when none is open.
    CDialog* lastDialog() const {
        const auto& windows = m_window.children();
        return windows.empty() ? nullptr : dynamic_cast<CDialog*>(windows.back());
    }

  private:
    CWnd m_window;
};

void require(bool isDone, std::string_view what) {
    if (!isDone) throw std::runtime_error(std::string(what));
}

void require(ErrorStatus status, std::string_view what) {
    require(status == Acad::eOk, what);
}

using Sizes = std::initializer_list<std::pair<const char*, double>>;

/// Adds a module with its sizes in millimetres.
void add(Vor_Macro& macro, std::unique_ptr<Vor_Module> module, Sizes sizes) {
    for (const auto& [name, value] : sizes)
        require(module->addVariable({name, value, true, true, Vor_FlexState::none}), name);
    require(macro.addModule(std::move(module)), "the module is refused");
}

/// An end plate with its bolts and weld, between a beam and a column.
Vor_DbMacro makeMacro() {
    Vor_Macro macro;
    auto bolts = std::make_unique<Vor_BoltModule>("Bolts");
    require(bolts->setBoltDiameter(20), "the diameter is refused");
    bolts->addPattern({{}, "Rows", Vor_PatternType::grid, 2, 2, false, false});
    add(macro, std::make_unique<Vor_PlainModule>("Plate", Vor_ModuleType::plate),
        {{"Height", 200}, {"Width", 150}, {"Thickness", 10}});
    add(macro, std::move(bolts), {{"Gauge", 90}, {"EdgeEnd", 40}, {"EdgeSide", 30}, {"Pitch", 60}});
    add(macro, std::make_unique<Vor_PlainModule>("Weld", Vor_ModuleType::weld), {{"Throat", 4}});
    for (const auto& [name, value] :
         Sizes{{"gen_BoltClass", 8.8}, {"gen_SteelClass", 275}, {"gen_ShearForce", 220}})
        require(macro.addGeneralVariable(name, value), name);
    for (const char* name : {"gen_Resistance", "gen_Utilisation", "gen_Fits"})
        require(macro.addGeneralVariable(name, 0), name);
    Vor_DbMacro dbMacro(std::move(macro));
    require(dbMacro.addBaseProf({"", "IPE-300", "S275", "Beam"}), "the beam is refused");
    require(dbMacro.addBaseProf({"", "HEB-200", "S275", "Column"}), "the column is refused");
    return dbMacro;
}

/// The results go into the macro: all of them, or none when something fails.
void runStandard(Vor_DbMacro& macro) {
    AcTransaction transaction;
    transaction.remember(macro);
    MacroData data = makeMacroData(macro);
    TwDlgStandardsData run;
    require(run.initialize(&macro, "EndPlate", "BeamToColumn", &data), "there is no macro");
    run.transaction = &transaction;
    const bool isDone = StartDlgStandardsSS(run);
    require(isDone, lastRunFailure().view());
    require(data.setAllToMacro(&macro), "the macro refuses the results");
    transaction.commit();
    for (const TwVarCell& variable : run.varCells)
        if (variable.isOutput() &&
            (variable.name().equal("BoltRows") || variable.name().equal("PlateHeight")))
            std::cout << variable.name().view() << " = " << variable.value().view() << "\n";
}

// The items of the dialogs of named values: the grid, with the values in its second column.
constexpr int valuesGrid = 1001;
constexpr int valueColumn = 2;

/// A modal dialog; the script answers while the starter waits for its end.
void editConstraints(ScriptedUser& user) {
    EditConstrData data;
    data.constraints.append({"Gap", 10, false, true});
    data.apply = [](const EditConstrData& edited) {
        std::cout << "gap = " << edited.constraints[0].value << "\n";
    };
    user.whenOpens(8715)
        .does([](CDialog& dialog) {
            dialog.itemAs<Vor_Spread>(valuesGrid)->userEnters(valueColumn, 3, "12.5");
        })
        .presses(IDOK);
    require(StartDlgEditConstrModal(data), "the constraints were cancelled");
}

/// A modeless dialog: the starter returns at once, the call comes when the dialog has gone.
void editMacro(ExampleHost& host, ScriptedUser& user, Vor_DbMacro& macro) {
    MacroData data = makeMacroData(macro);
    int slot = 0;
    // No exceptions from calls of the module: it would not know what to do with them.
    const auto ended = [&macro](int, bool isConfirmed, const MacroData& edited) {
        const bool isTaken = isConfirmed && edited.setAllToMacro(&macro) == Acad::eOk;
        std::cout << (isTaken ? "confirmed\n" : isConfirmed ? "refused\n" : "cancelled\n");
    };
    for (const int button : {IDCANCEL, IDOK}) {
        require(StartDlgMacroModeless(false, data, slot, ended), "the dialog cannot be opened");
        host.lastDialog()->press(button);
        user.advanceClock(50);  // a dialog goes a moment after its button
    }
}

void makeBill(const Vor_DbMacro& macro, const Vor_String& file) {
    const MassPerMetre unknown = [](std::string_view) { return std::nullopt; };
    PartBillOptions options;
    options.title = "End plate";
    options.fields = {BillField::name, BillField::section, BillField::count, BillField::mass};
    Vor_Bill bill = billFromParts(partsOfMacro(macro, unknown), options);
    AcArray<int> kinds;
    for (const BillColumn& column : bill.columns) kinds.append(static_cast<int>(column.kind));

    gSettings.setVorDir(gSettings.libDir().view());  // where the settings "Bill" lie
    TwSSBillOutput output;
    require(output.init(file, bill.columnNames(), {}, kinds, "Bill", {}, {}), "no window");
    require(feedBill(bill, output) == BillFeed::done, "the bill cannot be made");
    require(output.wasSaved(), output.saveFailure());

    const Vor_Spread& sheet = *output.sheet();
    for (int row = 1; row <= sheet.nrRows(); ++row) {
        for (int col = 1; col <= sheet.nrCols(); ++col) {
            Vor_String text;
            sheet.getValue(col, row, text);
            std::cout << (col > 1 ? " | " : "") << text.view();
        }
        std::cout << "\n";
    }
}

}  // namespace

int main(int count, char** arguments) try {
    require(count == 3, "usage: host_example LIBRARY BILL");
    ExampleHost host;
    const HostScope installed(host);
    ScriptedUser user;
    acrxEntryPoint(AcRx::kInitAppMsg, nullptr);
    gSettings.setLibDir(arguments[1]);

    Vor_DbMacro macro = makeMacro();
    runStandard(macro);
    editConstraints(user);
    editMacro(host, user, macro);
    makeBill(macro, arguments[2]);

    acrxEntryPoint(AcRx::kUnloadAppMsg, nullptr);
    require(user.problems().empty() && user.unusedAnswers().empty(), "the script did not fit");
} catch (const std::exception& failure) {
    std::cerr << "host_example: " << failure.what() << "\n";
    return 1;
}
