// The only file that knows the parser of command lines; it is slow to compile.
#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <iostream>

#include "cli/bill/bill_command.h"
#include "cli/cutstock/cutstock_commands.h"
#include "cli/io/suggestion.h"
#include "cli/mapping/mapping_commands.h"
#include "cli/sections/section_commands.h"
#include "cli/sheets/sheet_commands.h"
#include "cli/standards/library.h"
#include "cli/standards/standards_commands.h"
#include "core_api/library_names.h"
#include "core_api/texts/language_codes.h"

namespace cli {

namespace {

/// All that a call can ask for, and what it asked for.
struct Calls {
    std::string library;
    bool outside = false;
    CheckRequest check;
    TestRequest test;
    RunRequest run;
    BatchRequest batch;
    ShowRequest show;
    EvalRequest eval;
    ConvertRequest convert;
    ShowMappingRequest showMapping;
    SetMappingRequest setMapping;
    ObjectsRequest objects;
    BillRequest bill;
    ListSectionsRequest listSections;
    ShowSectionRequest showSection;
    FindSectionsRequest findSections;
    CheckSectionsRequest checkSections;
    ImportSectionsRequest importSections;
    ExportSectionsRequest exportSections;
    ListStockRequest listStock;
    ShowStockRequest showStock;
    ImportStockRequest importStock;
    ExportStockRequest exportStock;
    ReportStockRequest reportStock;
    std::function<ExitCode()> work;
};

/// An option that takes one "Name=Value" and may be given again.
CLI::Option* addAssignments(CLI::App& command, const std::string& names,
                            std::vector<std::string>& values, const std::string& help) {
    return command.add_option(names, values, help)
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
}

template <class Work>
void onCall(CLI::App& command, Calls& calls, Work work) {
    command.callback([&calls, work] { calls.work = work; });
}

/// `work` runs with the library open.
template <class Work>
void onLibraryCall(CLI::App& command, Calls& calls, Work work) {
    command.callback([&calls, work] {
        calls.work = [&calls, work] {
            return openLibrary(calls.library) ? work() : ExitCode::failed;
        };
    });
}

/// For names: an empty one is a variable of a script that was not set.
std::string refusedWhenEmpty(const std::string& text) {
    return text.empty() ? "this is empty" : "";
}

void addStandardsReaders(CLI::App& standards, Calls& calls) {
    auto& list = *standards.add_subcommand(
        "list", "Name the standards of the library with their inputs and outputs");
    onLibraryCall(list, calls, [] { return listStandards(); });

    auto& check = *standards.add_subcommand(
        "check", "Look for mistakes in standards: file:row:column: message");
    check.add_option("FILE", calls.check.files, "A standards file, or a name in the library")
        ->required()
        ->check(refusedWhenEmpty);
    onLibraryCall(check, calls, [&calls] { return checkStandards(calls.check); });

    auto& test = *standards.add_subcommand(
        "test", "Run the check problems that stand beside a standard (NAME.cases.csv)");
    auto* names = test.add_option("NAME", calls.test.names, "A standard")->check(refusedWhenEmpty);
    auto* all =
        test.add_flag("--all", calls.test.all, "Every standard of the library that has cases");
    names->excludes(all);
    onLibraryCall(test, calls, [&calls] { return testStandards(calls.test); });
}

void addStandardsRunners(CLI::App& standards, Calls& calls) {
    auto& run = *standards.add_subcommand("run", "Run a standard and print its outputs");
    run.add_option("NAME", calls.run.name, "A standard of the library, or a file")
        ->required()
        ->check(refusedWhenEmpty);
    auto* set = addAssignments(run, "--set", calls.run.values, "Give an input its value");
    auto* macro =
        run.add_option("--macro", calls.run.macroFile, "Take the inputs from this macro file")
            ->type_name("FILE")
            ->check(refusedWhenEmpty);
    auto* key = run.add_option("--key", calls.run.mappingKey,
                               "The line of the mapping file, or Module.GROUP")
                    ->type_name("KEY");
    auto* write =
        run.add_flag("--write{yes}", calls.run.write,
                     "Write the outputs back into the macro file; =always also when inputs could "
                     "not be read")
            ->check(CLI::IsMember({"yes", "always"}));
    addAssignments(run, "--gen", calls.run.genValues, "Replace a gen_ name by a value");
    run.add_flag("--trace", calls.run.trace, "Print every equation with its formula and value");
    run.add_flag("--json", calls.run.json, "Print one JSON object");
    set->excludes(macro);
    macro->needs(key);
    key->needs(macro);
    write->needs(macro);
    onLibraryCall(run, calls, [&calls] { return runStandard(calls.run); });

    auto& batch = *standards.add_subcommand(
        "batch", "Run a standard once for every line of inputs; a filter");
    batch.add_option("NAME", calls.batch.name, "A standard of the library, or a file")
        ->required()
        ->check(refusedWhenEmpty);
    batch.add_option("INPUT", calls.batch.input, "A file of lines; - is the standard input")
        ->check(refusedWhenEmpty);
    batch.add_flag("--jsonl", calls.batch.jsonLines, "Lines are JSON objects instead of CSV");
    batch.add_flag("!--no-header", calls.batch.header, "Leave out the line of output names");
    addAssignments(batch, "--gen", calls.batch.genValues, "Replace a gen_ name by a value");
    onLibraryCall(batch, calls, [&calls] { return batchStandard(calls.batch); });
}

void addSheetCommands(CLI::App& sheet, Calls& calls) {
    auto& show = *sheet.add_subcommand("show", "Print a document as a table");
    show.add_option("FILE", calls.show.file, "A document")->required()->check(refusedWhenEmpty);
    show.add_flag("--formulas", calls.show.formulas, "Print formulas instead of their results");
    onCall(show, calls, [&calls] { return showSheet(calls.show); });

    auto& eval = *sheet.add_subcommand("eval", "Calculate formulas");
    auto* text = eval.add_option("FORMULA", calls.eval.formula, "For example '=ROUND(A1/3,2)'");
    auto* cells = eval.add_option("--cell", calls.eval.cells, "What a cell holds")
                      ->type_name("ADDRESS=VALUE")
                      ->allow_extra_args(false);
    auto* lines = eval.add_flag("--jsonl", calls.eval.jsonLines,
                                "Read formulas as JSON lines, write results as JSON lines");
    auto* input = eval.add_option("--input", calls.eval.input, "The file of JSON lines")
                      ->type_name("FILE")
                      ->check(refusedWhenEmpty);
    lines->excludes(text)->excludes(cells);
    input->needs(lines);
    onCall(eval, calls, [&calls] { return evalFormula(calls.eval); });

    auto& convert =
        *sheet.add_subcommand("convert", "Convert documents: .tws to .csv and .xlsx, .csv to .tws");
    convert.add_option("FROM", calls.convert.from, "A document or CSV file")
        ->required()
        ->check(refusedWhenEmpty);
    convert.add_option("TO", calls.convert.to, "The file to write")
        ->required()
        ->check(refusedWhenEmpty);
    convert.footer(
        "From CSV a field that starts with = is a formula, a numeric field a number, all else a "
        "text:\n"
        "007 is the number 7, and \"=\"\"007\"\"\" keeps its digits.");
    onCall(convert, calls, [&calls] { return convertSheet(calls.convert); });
}

void addMappingCommands(CLI::App& mapping, Calls& calls) {
    const auto addName = [](CLI::App& command, std::string& name) {
        command.add_option("NAME", name, "A standard of the library")
            ->required()
            ->check(refusedWhenEmpty);
    };
    const auto addKey = [](CLI::App& command, std::string& key, const char* help) {
        command.add_option("--key", key, help)->type_name("KEY")->check(refusedWhenEmpty);
    };
    const auto addMacro = [](CLI::App& command, std::string& file, const char* help) {
        return command.add_option("--macro", file, help)
            ->type_name("FILE")
            ->check(refusedWhenEmpty);
    };

    auto& show = *mapping.add_subcommand("show", "Print the mappings of a standard");
    addName(show, calls.showMapping.name);
    addKey(show, calls.showMapping.key, "Only the mapping of this key");
    addMacro(show, calls.showMapping.macroFile, "Mark objects that this macro does not have");
    show.add_flag("--json", calls.showMapping.json, "Print one JSON array");
    onLibraryCall(show, calls, [&calls] { return showMapping(calls.showMapping); });

    auto& set = *mapping.add_subcommand("set", "Choose objects of a macro for variables");
    addName(set, calls.setMapping.name);
    set.add_option("VARIABLE=OBJECT", calls.setMapping.assignments,
                   "An object as 'mapping objects' names it; nothing behind = takes it away")
        ->required();
    addMacro(set, calls.setMapping.macroFile, "The macro that has the objects")->required();
    addKey(set, calls.setMapping.key,
           "The mapping to change or make; without it a new key is drawn");
    set.add_flag("--attach", calls.setMapping.attach,
                 "Attach the standard, with this mapping, to the macro too");
    onLibraryCall(set, calls, [&calls] { return setMapping(calls.setMapping); });

    auto& objects = *mapping.add_subcommand(
        "objects", "Name everything in a macro that variables can stand for");
    objects.add_option("FILE", calls.objects.macroFile, "A macro file")
        ->required()
        ->check(refusedWhenEmpty);
    onLibraryCall(objects, calls, [&calls] { return listObjects(calls.objects); });
}

void addBillCommand(CLI::App& app, Calls& calls) {
    constexpr int lowest = 20, highest = 1000;
    BillRequest& request = calls.bill;
    auto& bill = *app.add_subcommand("bill", "Make a bill of materials of macros or of a table");
    bill.add_option("FROM", request.sources,
                    "Macros, by file or by name in the library, as often as they are counted; or "
                    "one .csv file")
        ->required()
        ->check(refusedWhenEmpty);
    bill.add_option("-o,--output", request.output,
                    "The file to write: .sss, .tws, .xlsx, .csv or .pdf; without it the rows are "
                    "printed as CSV")
        ->type_name("FILE")
        ->check(refusedWhenEmpty);
    bill.add_option("--columns", request.columns, "The columns to show, in order")
        ->type_name("NAME,…");
    bill.add_option("--group", request.group,
                    "none, kind, section or material; or a column of the table")
        ->type_name("NAME");
    bill.add_flag("--pictures", request.pictures, "Put a picture of each piece below its row");
    bill.add_option("--picture-height", request.pictureHeight, "Pixels")
        ->type_name("PIXELS")
        ->check(CLI::Range(lowest, highest));
    bill.add_option("--title", request.title, "What page headers call the bill")->type_name("TEXT");
    bill.add_option("--settings", request.settings,
                    "A settings file: NAME.twd in the library, or a path")
        ->type_name("NAME");
    bill.add_option("--language", request.language, "Of headings and sums: en, nl, de or fr")
        ->type_name("CODE")
        ->check([](const std::string& code) {
            return languageOfCode(code) ? std::string() : "choose " + std::string(languageCodes);
        });
    bill.add_flag("--json", request.json, "Print one JSON object that sums the bill up");
    onLibraryCall(bill, calls, [&calls] { return makeBill(calls.bill); });
}

void addSectionReaders(CLI::App& sections, Calls& calls) {
    auto& list = *sections.add_subcommand("list", "Name the section tables of the library");
    list.add_flag("--json", calls.listSections.json, "Print one JSON array");
    onLibraryCall(list, calls, [&calls] { return listSections(calls.listSections); });

    auto& show = *sections.add_subcommand("show", "Print a table, or all about one section");
    show.add_option("NAME", calls.showSection.name, "A table, a section or its user name")
        ->required()
        ->check(refusedWhenEmpty);
    show.add_flag("--json", calls.showSection.json, "Print one JSON object");
    onLibraryCall(show, calls, [&calls] { return showSection(calls.showSection); });

    auto& find = *sections.add_subcommand("find", "Search all tables for sections that fit");
    find.add_option("CONDITION", calls.findSections.conditions,
                    "As 'h>=200', b=100..150, name=IPE*; all have to hold")
        ->required()
        ->check(refusedWhenEmpty);
    find.add_option("--sort", calls.findSections.sortColumn, "The least of this column first")
        ->type_name("COLUMN")
        ->check(refusedWhenEmpty);
    find.add_flag("--inactive", calls.findSections.inactive, "Sizes out of use too");
    find.add_flag("--json", calls.findSections.json, "Print one JSON array");
    onLibraryCall(find, calls, [&calls] { return findSections(calls.findSections); });

    auto& check = *sections.add_subcommand(
        "check", "Look for mistakes in section tables: file:row:column: message");
    check.add_option("TABLE", calls.checkSections.tables, "A table or a file; none: all tables")
        ->check(refusedWhenEmpty);
    check.add_flag("--json", calls.checkSections.json, "Print one JSON array");
    onLibraryCall(check, calls, [&calls] { return checkSections(calls.checkSections); });
}

void addSectionExchange(CLI::App& sections, Calls& calls) {
    auto& import = *sections.add_subcommand("import", "Make a section table from CSV or JSON");
    import
        .add_option("FILE", calls.importSections.file,
                    "A CSV or .json file; - is the standard input")
        ->required()
        ->check(refusedWhenEmpty);
    import.add_option("TABLE", calls.importSections.table, "Its name in the library, or a path")
        ->required()
        ->check(refusedWhenEmpty);
    import
        .add_option(
            "--type", calls.importSections.type,
            "The section type, 1 to 24, or a .dwg file; else as in the JSON or the table replaced")
        ->type_name("TYPE")
        ->check(refusedWhenEmpty);
    import.add_flag("--force", calls.importSections.force, "Replace a table that is there");
    import.add_flag("--json", calls.importSections.json, "JSON as it is exported, in place of CSV");
    onLibraryCall(import, calls, [&calls] { return importSections(calls.importSections); });

    auto& out = *sections.add_subcommand("export", "Write a section table as CSV or JSON");
    out.add_option("TABLE", calls.exportSections.table, "A table or a file")
        ->required()
        ->check(refusedWhenEmpty);
    out.add_option("FILE", calls.exportSections.file,
                   "A .csv or .json file; - is the standard output")
        ->check(refusedWhenEmpty);
    out.add_flag("--json", calls.exportSections.json, "JSON in place of CSV");
    onLibraryCall(out, calls, [&calls] { return exportSections(calls.exportSections); });
}

void addStockItem(CLI::App& command, std::string& item) {
    command.add_option("ITEM", item, "An item of the library")->required()->check(refusedWhenEmpty);
}

void addStockKind(CLI::App& command, std::string& kind) {
    command.add_option("KIND", kind, "shp, the stock, or buy, the purchases")
        ->required()
        ->check(CLI::IsMember({"shp", "buy"}));
}

void addStockReaders(CLI::App& cutstock, Calls& calls) {
    auto& list = *cutstock.add_subcommand("list", "Name the items with their newest files");
    list.add_flag("--json", calls.listStock.json, "Print one JSON array");
    onLibraryCall(list, calls, [&calls] { return listStock(calls.listStock); });

    auto& show = *cutstock.add_subcommand("show", "Print the tables of an item");
    addStockItem(show, calls.showStock.item);
    show.add_option("--file", calls.showStock.file,
                    "This file, of the item's folder or a path, and not the newest ones")
        ->type_name("FILE")
        ->check(refusedWhenEmpty);
    show.add_flag("--json", calls.showStock.json, "Print one JSON object");
    onLibraryCall(show, calls, [&calls] { return showStock(calls.showStock); });

    auto& report = *cutstock.add_subcommand(
        "report", "Read the newest files of items as the dialog does and print its report");
    report.add_option("ITEM", calls.reportStock.items, "An item; none: all items")
        ->check(refusedWhenEmpty);
    report.add_flag("--json", calls.reportStock.json, "Print one JSON object");
    onLibraryCall(report, calls, [&calls] { return reportStock(calls.reportStock); });
}

void addStockExchange(CLI::App& cutstock, Calls& calls) {
    ImportStockRequest& in = calls.importStock;
    auto& import = *cutstock.add_subcommand("import", "Make a file of an item from CSV");
    import.add_option("CSV", in.csv, "A CSV file without a header; - is the standard input")
        ->required()
        ->check(refusedWhenEmpty);
    addStockItem(import, in.item);
    addStockKind(import, in.kind);
    import.add_option("--as", in.name, "The name of the file; else the next free number")
        ->type_name("NAME")
        ->check(refusedWhenEmpty);
    import.add_flag("--force", in.force, "Replace a file that is there");
    import.add_flag("--new", in.newItem, "Add the item to Items.dat when it is not there");
    onLibraryCall(import, calls, [&calls] { return importStock(calls.importStock); });

    ExportStockRequest& request = calls.exportStock;
    auto& out = *cutstock.add_subcommand("export", "Write a table of an item as CSV or JSON");
    addStockItem(out, request.item);
    addStockKind(out, request.kind);
    out.add_option("TO", request.to, "A .csv or .json file; - is the standard output")
        ->check(refusedWhenEmpty);
    out.add_option("--file", request.file, "This file and not the newest one")
        ->type_name("FILE")
        ->check(refusedWhenEmpty);
    out.add_flag("--json", request.json, "JSON in place of CSV");
    onLibraryCall(out, calls, [&calls] { return exportStock(calls.exportStock); });
}

/// The subcommand that the call got as far as.
const CLI::App& commandMeant(const CLI::App& app) {
    const auto chosen = app.get_subcommands();
    return chosen.empty() ? app : commandMeant(*chosen.front());
}

std::string fullName(const CLI::App& command) {
    const CLI::App* parent = command.get_parent();
    return (parent ? fullName(*parent) + " " : "") + command.get_name();
}

/// The words that could stand behind `command`.
std::vector<std::string> wordsOf(const CLI::App& command) {
    std::vector<std::string> words;
    for (const CLI::App* sub : command.get_subcommands({})) words.push_back(sub->get_name());
    for (const CLI::App* app = &command; app; app = app->get_parent())
        for (const CLI::Option* option : app->get_options())
            for (const auto& name : option->get_lnames()) words.push_back("--" + name);
    return words;
}

ExitCode wrongCall(const CLI::App& app, const CLI::ParseError& error) {
    const CLI::App& command = commandMeant(app);
    const auto unknown = app.remaining(true);
    std::string message = error.what();
    if (!unknown.empty())
        message = "\"" + unknown.front() + "\" makes no sense here" +
                  didYouMean(nearest(unknown.front(), wordsOf(command)));
    else if (dynamic_cast<const CLI::RequiredError*>(&error) &&
             command.get_require_subcommand_min() > 0)
        message = "say which command you mean";
    while (message.ends_with('\n')) message.pop_back();
    complain(message);
    std::fprintf(stderr, "See '%s --help'.\n", fullName(command).c_str());
    return ExitCode::wrongCall;
}

}  // namespace

ExitCode runCommandLine(int argc, const char* const* argv) {
    Calls calls;
    CLI::App app("Connection standards and their spreadsheets, without a CAD program.", "vormant");
    app.set_version_flag("--version", "vormant " VORMANT_VERSION, "Print the version");
    app.add_option("--library", calls.library, "The library folder")
        ->type_name("DIR")
        ->envname("VORMANT_LIBRARY");
    app.add_flag("--outside", calls.outside, "Let names in files of the library lead out of it");
    app.require_subcommand(1);
    app.fallthrough();

    auto& standards = *app.add_subcommand("standards", "Check, test and run connection standards");
    standards.require_subcommand(1);
    addStandardsReaders(standards, calls);
    addStandardsRunners(standards, calls);
    auto& sheet = *app.add_subcommand("sheet", "Show, calculate and convert spreadsheets");
    sheet.require_subcommand(1);
    addSheetCommands(sheet, calls);
    auto& sections =
        *app.add_subcommand("sections", "List, search, check and exchange section tables");
    sections.require_subcommand(1);
    addSectionReaders(sections, calls);
    addSectionExchange(sections, calls);
    auto& cutstock =
        *app.add_subcommand("cutstock", "List, show and exchange the files of cutting-stock items");
    cutstock.require_subcommand(1);
    addStockReaders(cutstock, calls);
    addStockExchange(cutstock, calls);
    auto& mapping =
        *app.add_subcommand("mapping", "Tie the variables of a standard to objects of macros");
    mapping.require_subcommand(1);
    addMappingCommands(mapping, calls);
    addBillCommand(app, calls);

    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& help) {
        app.exit(help);
        if (std::cout.flush()) return ExitCode::done;
        complain("the output cannot be written");
        return ExitCode::failed;
    } catch (const CLI::ParseError& error) {
        return wrongCall(app, error);
    }
    setLibraryNameRule(
        {calls.outside ? OutsideNames::allowed : OutsideNames::refused, "allow it with --outside"});
    return calls.work();
}

}  // namespace cli
