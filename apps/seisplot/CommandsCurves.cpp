// curves list|show|plot|mix: curve collection files (*.pcc, *.pmc), as the curve display and
// curve mixing dialogs show and change them.

#include "AtomicFile.h"
#include "Commands.h"
#include "Errors.h"
#include "FileChecks.h"

#include "host/CurveFormula.h"
#include "host/CurveKinds.h"
#include "host/CurveListing.h"
#include "host/UnitKind.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <sstream>

namespace seisplot::cli {
namespace {

enum class CollectionKind { Functions, Polylines };

CollectionKind KindOfFile(const std::string& path) {
    const std::string extension = std::filesystem::path(path).extension().string();
    if (extension == FunctionCurves::kExtension) {
        return CollectionKind::Functions;
    }
    if (extension == FreeCurves::kExtension) {
        return CollectionKind::Polylines;
    }
    BadUsage(path + ": a curve collection is a .pcc (function curves) or .pmc (polylines) file");
}

template <class Kind> typename Kind::Collection Load(const std::string& path) {
    CheckInput("the curve collection", path);
    typename Kind::Collection collection;
    if (collection.ReadFromFile(path.c_str()) != 0) {
        Fail("cannot read the curve collection " + path + ": it is not a " +
             (std::string(Kind::kExtension) == ".pcc" ? "function curve (.pcc)"
                                                      : "polyline (.pmc)") +
             " collection");
    }
    return collection;
}

template <class Kind> void Save(const std::string& path, typename Kind::Collection& collection) {
    ReplaceFile(path, [&](const std::string& temporary) {
        if (collection.WriteToFile(temporary.c_str()) != 0) {
            Fail("cannot write the curve collection " + path);
        }
    });
}

template <class Kind>
typename Kind::Curve& CurveAt(typename Kind::Collection& collection, unsigned long number,
                              const std::string& path) {
    const auto count = static_cast<unsigned long>(Kind::Count(collection));
    if (number < 1 || number > count) {
        Fail("there is no curve " + std::to_string(number) + " in " + path + " (it holds " +
             std::to_string(count) + (count == 1 ? " curve)" : " curves)"));
    }
    return *collection.GetP(static_cast<int>(number));
}

// "m,kN,s": each label sets the unit of its quantity.
Units UnitsOf(const std::string& labels) {
    Units units;
    std::stringstream list(labels);
    for (std::string label; std::getline(list, label, ',');) {
        if (!units.SetUnit(label.c_str())) {
            BadUsage("--units " + labels + ": '" + label +
                     "' is no unit (mm cm m in ft, N kN kgf lbf, s)");
        }
    }
    return units;
}

std::string KindText(UnitKind kind) {
    const std::string_view name = UnitKindName(kind);
    return name.empty() ? std::to_string(static_cast<int>(kind)) : std::string(name);
}

template <class Kind> void List(const CurvesOptions& options, std::ostream& out) {
    auto collection = Load<Kind>(options.file);
    const int count = Kind::Count(collection);
    if (options.format.Format() == OutputFormat::Json) {
        JsonValue curves = JsonValue::array();
        for (int i = 1; i <= count; ++i) {
            const auto& c = *collection.GetP(i);
            curves.push_back({{"number", i},
                              {"name", c.GetName().GetString()},
                              {"points", c.GetNP()},
                              {"x_name", c.XName.GetString()},
                              {"x_kind", KindText(c.XUnit)},
                              {"y_name", c.YName.GetString()},
                              {"y_kind", KindText(c.YUnit)}});
        }
        PrintJson(out, {{"file", options.file}, {"curves", curves}});
        return;
    }
    Table table;
    table.AddColumn("#");
    table.AddColumn("name", Table::Align::Left);
    table.AddColumn("points");
    table.AddColumn("x", Table::Align::Left);
    table.AddColumn("x kind", Table::Align::Left);
    table.AddColumn("y", Table::Align::Left);
    table.AddColumn("y kind", Table::Align::Left);
    for (int i = 1; i <= count; ++i) {
        const auto& c = *collection.GetP(i);
        table.AddRow({std::to_string(i), c.GetName().GetString(), std::to_string(c.GetNP()),
                      c.XName.GetString(), KindText(c.XUnit), c.YName.GetString(),
                      KindText(c.YUnit)});
    }
    if (options.format.Format() == OutputFormat::Text) {
        out << options.file << ": " << count << (count == 1 ? " curve\n" : " curves\n");
    }
    table.Print(out, options.format.Format());
}

template <class Kind> void Show(const CurvesOptions& options, std::ostream& out) {
    auto collection = Load<Kind>(options.file);
    const auto& curve = CurveAt<Kind>(collection, options.curve, options.file);
    const Units units = UnitsOf(options.units);
    if (options.format.Format() == OutputFormat::Json) {
        JsonValue points = JsonValue::array();
        for (int k = 1; k <= curve.GetNP(); ++k) {
            const RPoint2D& p = curve[k - 1];
            points.push_back({{"number", k},
                              {"x", ListedValue(&units, curve.XUnit, p.GetX())},
                              {"y", ListedValue(&units, curve.YUnit, p.GetY())},
                              {"name", p.GetName().GetString()},
                              {"marked", p.IsSelected(1) != 0}});
        }
        PrintJson(out, {{"file", options.file},
                        {"curve", options.curve},
                        {"name", curve.GetName().GetString()},
                        {"points", points}});
        return;
    }
    // The listing the curve display dialog writes: its lines, each ended by CR LF in a file.
    std::string listing;
    const std::string end = options.output.empty() ? "\n" : "\r\n";
    for (int k = 1; k <= curve.GetNP(); ++k) {
        listing += CurveListingLine(curve, k, &units, options.swapAxes).GetString() + end;
    }
    if (options.output.empty()) {
        out << listing;
        return;
    }
    RefuseOverwritingInput("-o", options.output, {{options.file, "the curve collection"}});
    WriteTextFile(options.output, listing);
    out << "Listing of curve " << options.curve << " written to " << options.output << '\n';
}

template <class Kind> void Plot(const CurvesOptions& options, std::ostream& out) {
    CheckPlotOptions(options.plot);
    RefuseOverwritingInput("-o", *options.plot.file, {{options.file, "the curve collection"}});
    auto collection = Load<Kind>(options.file);
    auto curve = CurveAt<Kind>(collection, options.curve, options.file);
    WritePlot(options.plot, curve);
    out << "Plot of curve " << options.curve << " (" << curve.GetName().GetString()
        << ") written to " << *options.plot.file << '\n';
}

template <class Kind> void Mix(const CurvesOptions& options, std::ostream& out) {
    const std::optional<UnitKind> kind = UnitKindNamed(options.kind);
    if (!kind) {
        BadUsage("--kind " + options.kind +
                 ": give length, surface, volume, length4, force, moment, stress, rotation, "
                 "number, acceleration, velocity or time");
    }
    if (options.bind.empty() || options.bind.size() > kFormulaSlots) {
        BadUsage("--bind: give one to six VAR=N, the first being curve A");
    }
    const Units units = UnitsOf(options.units);
    auto collection = Load<Kind>(options.file);
    std::array<FormulaSlot, kFormulaSlots> slots;
    for (size_t s = 0; s < slots.size(); ++s) {
        slots[s].variable = std::string(1, static_cast<char>('A' + s)).c_str();
    }
    for (size_t s = 0; s < options.bind.size(); ++s) {
        const std::string& binding = options.bind[s];
        const size_t equals = binding.find('=');
        char* end = nullptr;
        const unsigned long number =
            equals == std::string::npos ? 0 : std::strtoul(binding.c_str() + equals + 1, &end, 10);
        if (equals == 0 || equals == std::string::npos || end == nullptr || *end != '\0' ||
            number == 0) {
            BadUsage("--bind " + binding + ": give VAR=N, a variable name and a curve number");
        }
        slots[s].variable = binding.substr(0, equals).c_str();
        slots[s].curve = &CurveAt<Kind>(collection, number, options.file);
    }
    // A slot left empty keeps a name of its own and counts 0, as in the dialog.
    for (size_t s = options.bind.size(); s < slots.size(); ++s) {
        slots[s].variable = ("unused" + std::to_string(s + 1)).c_str();
    }
    typename Kind::Curve result(*static_cast<const typename Kind::Curve*>(slots[0].curve));
    result.Clear();
    result.SetName(options.name.c_str());
    (options.onX ? result.XUnit : result.YUnit) = *kind;
    const auto axis = options.onX ? FormulaAxis::X : FormulaAxis::Y;
    switch (ApplyCurveFormula(slots, options.formula.c_str(), axis, *kind, units, result)) {
    case FormulaOutcome::Done:
        break;
    case FormulaOutcome::TooFewPoints:
        Fail("Different number of points");
    default:
        Fail("Error processing expression");
    }
    Kind::Add(collection, result);
    const std::string target = options.output.empty() ? options.file : options.output;
    Save<Kind>(target, collection);
    out << "Curve " << Kind::Count(collection) << " (" << options.name << ", " << result.GetNP()
        << " points) added to " << target << '\n';
}

// Runs `run` for the collection kind the file's extension names.
template <template <class> class Run>
void ForKind(const CurvesOptions& options, std::ostream& out) {
    if (KindOfFile(options.file) == CollectionKind::Functions) {
        Run<FunctionCurves>::Go(options, out);
    } else {
        Run<FreeCurves>::Go(options, out);
    }
}

template <class Kind> struct ListRun {
    static void Go(const CurvesOptions& o, std::ostream& out) { List<Kind>(o, out); }
};
template <class Kind> struct ShowRun {
    static void Go(const CurvesOptions& o, std::ostream& out) { Show<Kind>(o, out); }
};
template <class Kind> struct PlotRun {
    static void Go(const CurvesOptions& o, std::ostream& out) { Plot<Kind>(o, out); }
};
template <class Kind> struct MixRun {
    static void Go(const CurvesOptions& o, std::ostream& out) { Mix<Kind>(o, out); }
};

} // namespace

void RunCurvesList(const CurvesOptions& options, std::ostream& out) {
    ForKind<ListRun>(options, out);
}
void RunCurvesShow(const CurvesOptions& options, std::ostream& out) {
    ForKind<ShowRun>(options, out);
}
void RunCurvesPlot(const CurvesOptions& options, std::ostream& out) {
    ForKind<PlotRun>(options, out);
}
void RunCurvesMix(const CurvesOptions& options, std::ostream& out) {
    ForKind<MixRun>(options, out);
}

void AddCurvesCommand(CLI::App& app, Action& action) {
    CLI::App* curves = app.add_subcommand(
        "curves", "Curve collections (*.pcc function curves, *.pmc polylines): list, show, plot, "
                  "and new curves from formulas");
    curves->require_subcommand(1);
    const auto fileOption = [](CLI::App& command, CurvesOptions& o) {
        command.add_option("FILE", o.file, "Curve collection (*.pcc or *.pmc)")->required();
    };
    const auto unitsOption = [](CLI::App& command, CurvesOptions& o) {
        command.add_option("--units", o.units, "Units values are read in: length,force,time")
            ->capture_default_str();
    };

    auto list = std::make_shared<CurvesOptions>();
    CLI::App* listCommand = curves->add_subcommand(
        "list", "One line per curve: number, name, points, axis names and unit kinds");
    fileOption(*listCommand, *list);
    AddFormatFlags(*listCommand, list->format, true);
    SetAction(*listCommand, action, list,
              [](const CurvesOptions& o) { RunCurvesList(o, std::cout); });

    auto show = std::make_shared<CurvesOptions>();
    CLI::App* showCommand = curves->add_subcommand(
        "show", "The listing of one curve, as the curve display dialog writes it");
    fileOption(*showCommand, *show);
    showCommand->add_option("N", show->curve, "Curve number (from 1)")
        ->required()
        ->check(kNumberFromOne);
    unitsOption(*showCommand, *show);
    showCommand->add_flag("--swap-axes", show->swapAxes, "The y column before the x column");
    showCommand->add_option("-o,--output", show->output,
                            "Write the listing to this file (CR LF lines) instead");
    AddFormatFlags(*showCommand, show->format, false);
    SetAction(*showCommand, action, show,
              [](const CurvesOptions& o) { RunCurvesShow(o, std::cout); });

    auto plot = std::make_shared<CurvesOptions>();
    CLI::App* plotCommand = curves->add_subcommand("plot", "Draw one curve into a picture");
    fileOption(*plotCommand, *plot);
    plotCommand->add_option("N", plot->curve, "Curve number (from 1)")
        ->required()
        ->check(kNumberFromOne);
    AddPictureOptions(*plotCommand, plot->plot);
    SetAction(*plotCommand, action, plot,
              [](const CurvesOptions& o) { RunCurvesPlot(o, std::cout); });

    auto mix = std::make_shared<CurvesOptions>();
    CLI::App* mixCommand = curves->add_subcommand(
        "mix", "Append a curve computed point by point from a formula over bound curves");
    fileOption(*mixCommand, *mix);
    mixCommand
        ->add_option("--bind", mix->bind,
                     "Variables and curve numbers, the first being curve A: A=1,B=3")
        ->delimiter(',')
        ->required();
    mixCommand->add_option("--formula", mix->formula, "The formula, e.g. \"(A - B) * 2\"")
        ->required();
    auto* onX = mixCommand->add_flag("--x", mix->onX, "The formula computes the x values");
    mixCommand->add_flag("--y", mix->onY, "The formula computes the y values (the default)")
        ->excludes(onX);
    mixCommand->add_option("--kind", mix->kind, "Unit kind of the computed values")
        ->capture_default_str();
    mixCommand->add_option("--name", mix->name, "Name of the new curve")->capture_default_str();
    unitsOption(*mixCommand, *mix);
    mixCommand->add_option("-o,--output", mix->output,
                           "Write the collection with the new curve here (default: FILE)");
    SetAction(*mixCommand, action, mix, [](const CurvesOptions& o) { RunCurvesMix(o, std::cout); });
}

} // namespace seisplot::cli
