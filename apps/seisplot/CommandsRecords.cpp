// list and show: what a record set holds.

#include "Archives.h"
#include "Commands.h"
#include "FileChecks.h"
#include "RecordSampling.h"

#include <cmath>
#include <iostream>
#include <optional>

namespace seisplot::cli {
namespace {

double Duration(const PCurve& curve) {
    return curve.GetMaxX() - curve.GetMinX();
}

std::string DateText(const COleDateTime& date, const char* format) {
    switch (date.GetStatus()) {
    case COleDateTime::valid:
        return date.Format(format).GetString();
    case COleDateTime::null:
        return "";
    default:
        return "invalid";
    }
}

} // namespace

void RunList(const ListOptions& options, std::ostream& out) {
    AccelerogramColl records;
    LoadRecordSet(options.set, records);
    const unsigned long count = records.GetAccelerogramNum();

    if (options.format.Format() == OutputFormat::Json) {
        JsonValue list = JsonValue::array();
        for (unsigned long i = 1; i <= count; ++i) {
            const Accelerogram& r = records.GetAccelerogram(i);
            const std::optional<double> step = ConstantStep(r.Record);
            list.push_back({{"number", i},
                            {"identifier", r.Identifier.GetString()},
                            {"file_identifier", r.FileIdentifier.GetString()},
                            {"pga_g", r.GetPga()},
                            {"points", r.Record.GetNP()},
                            {"step_s", step ? JsonValue(*step) : JsonValue()},
                            {"duration_s", Duration(r.Record)},
                            {"event_id", r.EventId.GetString()},
                            {"angle_we", r.AngleWE},
                            {"vertical", r.IsVertical != 0}});
        }
        PrintJson(out, {{"file", options.set}, {"records", list}});
        return;
    }

    Table table;
    table.AddColumn("#");
    table.AddColumn("identifier", Table::Align::Left);
    table.AddColumn("PGA (g)");
    table.AddColumn("points");
    table.AddColumn("step (s)");
    table.AddColumn("duration (s)");
    table.AddColumn("event id", Table::Align::Left);
    table.AddColumn("AngleWE");
    table.AddColumn("Z");
    for (unsigned long i = 1; i <= count; ++i) {
        const Accelerogram& r = records.GetAccelerogram(i);
        const std::optional<double> step = ConstantStep(r.Record);
        table.AddRow(
            {std::to_string(i), r.Identifier.GetString(), NumberText(r.GetPga()),
             std::to_string(r.Record.GetNP()),
             step ? NumberText(*step) : std::string(r.Record.GetNP() < 2 ? "-" : "varying"),
             NumberText(Duration(r.Record)), r.EventId.GetString(), NumberText(r.AngleWE),
             r.IsVertical ? "Z" : "-"});
    }
    if (options.format.Format() == OutputFormat::Text) {
        out << options.set << ": " << count << (count == 1 ? " record\n" : " records\n");
    }
    table.Print(out, options.format.Format());
}

void RunShow(const ShowOptions& options, std::ostream& out) {
    AccelerogramColl records;
    LoadRecordSet(options.set, records);
    Accelerogram& r = RecordAt(records, options.record, options.set);
    const PCurve& curve = r.Record;
    double peakTime = 0.0;
    double peak = -1.0;
    for (int i = 0; i < curve.GetNP(); ++i) {
        if (std::fabs(curve[i].GetY()) > peak) {
            peak = std::fabs(curve[i].GetY());
            peakTime = curve[i].GetX();
        }
    }
    const std::optional<double> step = ConstantStep(curve);

    // Label, JSON key and value, in the order printed.
    struct Field {
        const char* label;
        const char* key;
        JsonValue value;
    };
    const auto text = [](const CString& s) { return JsonValue(s.GetString()); };
    const std::vector<Field> fields = {
        {"Number", "number", options.record},
        {"Identifier", "identifier", text(r.Identifier)},
        {"File identifier", "file_identifier", text(r.FileIdentifier)},
        {"Name", "name", text(r.GetName())},
        {"Explanation", "explanation", text(r.Explanation)},
        {"Event name", "event_name", text(r.EventName)},
        {"Event id", "event_id", text(r.EventId)},
        {"Event date", "event_date", DateText(r.EventDate, "%Y-%m-%d")},
        {"Event time", "event_time", DateText(r.EventTime, "%H:%M:%S")},
        {"Synthetic", "synthetic", r.IsSynthetic},
        {"Synthetic kind", "synthetic_kind", r.SyntheticKind},
        {"Mw", "mw", r.Mw},
        {"Ml", "ml", r.Ml},
        {"Epicentral distance (km)", "epicentral_distance_km", r.EpicentralDistance},
        {"Hypocentral depth (km)", "hypocentral_depth_km", r.HypocentralDepth},
        {"Strike", "strike", r.Strike},
        {"Dip", "dip", r.Dip},
        {"Rake", "rake", r.Rake},
        {"Latitude", "latitude", r.Latitude},
        {"Longitude", "longitude", r.Longitude},
        {"AngleWE (deg)", "angle_we", r.AngleWE},
        {"Backazimuth (deg)", "backazimuth", r.Backazimuth},
        {"Vertical", "vertical", r.IsVertical},
        {"User1", "user1", text(r.User1)},
        {"User2", "user2", text(r.User2)},
        {"User3", "user3", text(r.User3)},
        {"User4", "user4", text(r.User4)},
        {"User5", "user5", text(r.User5)},
        {"Analysis id", "analysis_id", r.AnalysisId},
        {"Record version", "record_version", r.RecordVersion},
        {"Points", "points", curve.GetNP()},
        {"Step (s)", "step_s", step ? JsonValue(*step) : JsonValue()},
        {"Tmin (s)", "tmin_s", curve.GetMinX()},
        {"Tmax (s)", "tmax_s", curve.GetMaxX()},
        {"Duration (s)", "duration_s", Duration(curve)},
        {"PGA (g)", "pga_g", r.GetPga()},
        {"PGA at (s)", "pga_time_s", curve.GetNP() > 0 ? JsonValue(peakTime) : JsonValue()},
        {"Curve axes", "curve_axes",
         std::string(curve.XName.GetString()) + ", " + curve.YName.GetString()},
    };

    if (options.format.Format() == OutputFormat::Json) {
        JsonValue document = JsonValue::object();
        for (const Field& field : fields) {
            document[field.key] = field.value;
        }
        PrintJson(out, document);
        return;
    }
    size_t width = 0;
    for (const Field& field : fields) {
        width = std::max(width, std::string(field.label).size());
    }
    for (const Field& field : fields) {
        std::string value;
        if (field.value.is_string()) {
            value = field.value.get<std::string>();
        } else if (field.value.is_null()) {
            value = field.key == std::string("step_s") ? "varying" : "-";
        } else if (field.value.is_number_float()) {
            value = NumberText(field.value.get<double>());
        } else {
            value = field.value.dump();
        }
        out << field.label << ':' << std::string(width - std::string(field.label).size() + 2, ' ')
            << value << '\n';
    }
}

void RunRecordPlot(const RecordPlotOptions& options, std::ostream& out) {
    CheckPlotOptions(options.plot);
    RefuseOverwritingInput("-o", *options.plot.file, {{options.set, "the record set"}});
    AccelerogramColl records;
    LoadRecordSet(options.set, records);
    Accelerogram& record = RecordAt(records, options.record, options.set);
    PCurve curve = record.Record;
    curve.SetName(record.Identifier);
    WritePlot(options.plot, curve);
    out << "Plot of record " << options.record << " (" << record.Identifier.GetString()
        << ") written to " << *options.plot.file << '\n';
}

void AddRecordCommands(CLI::App& app, Action& action) {
    auto list = std::make_shared<ListOptions>();
    CLI::App* listCommand = app.add_subcommand(
        "list", "List the records of a record set: number, identifier, PGA, points, step, "
                "duration, event, direction");
    listCommand->add_option("SET", list->set, "Record set (*.acc)")->required();
    AddFormatFlags(*listCommand, list->format, true);
    SetAction(*listCommand, action, list, [](const ListOptions& o) { RunList(o, std::cout); });

    auto show = std::make_shared<ShowOptions>();
    CLI::App* showCommand = app.add_subcommand("show", "Show every field of one record");
    showCommand->add_option("SET", show->set, "Record set (*.acc)")->required();
    showCommand->add_option("N", show->record, "Record number (from 1)")
        ->required()
        ->check(kNumberFromOne);
    AddFormatFlags(*showCommand, show->format, false);
    SetAction(*showCommand, action, show, [](const ShowOptions& o) { RunShow(o, std::cout); });

    auto plot = std::make_shared<RecordPlotOptions>();
    CLI::App* plotCommand = app.add_subcommand("plot", "Draw one record into a picture");
    plotCommand->add_option("SET", plot->set, "Record set (*.acc)")->required();
    plotCommand->add_option("N", plot->record, "Record number (from 1)")
        ->required()
        ->check(kNumberFromOne);
    AddPictureOptions(*plotCommand, plot->plot);
    SetAction(*plotCommand, action, plot,
              [](const RecordPlotOptions& o) { RunRecordPlot(o, std::cout); });
}

} // namespace seisplot::cli
