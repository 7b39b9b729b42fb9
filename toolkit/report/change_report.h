#pragma once

#include <optional>
#include <string>
#include <vector>

#include "toolkit/report/snapshot.h"

// What a run of the plotter validator is asked to do.
struct PX_Validation_Order {
    PX_Validation_Strategy::Enum strategy = PX_Validation_Strategy::Use_Nearest;
    PX_Validation_Policy::Enum policy = PX_Validation_Policy::Validate_Conditional;
    bool validate_settable = true;
};

// What became of a datum, and how.
struct PX_Change_Kind {
    enum Enum : int {
        // The value is what it was; its bit may be raised all the same.
        Kept = 0,
        // Not looked at, but put to its default: the ability that gates the datum lets nobody choose under
        // the policy, or `validate_settable` is false.
        Reset = 1,
        // It was not valid and went to its default, also where the search found the default to be as near as
        // anything, or nothing near enough.
        To_Default = 2,
        // It was not valid and went to the nearest that the device has. A default of the output that the
        // machine cannot do goes on to the nearest too, also where it was to be put to it without a look.
        To_Nearest = 3,
        // It was not valid and was put right by its own rule, whatever the strategy: bounds are cut to the
        // printable ones, pens are put within their limits and made to fit their number, a dithering follows
        // from the resolution. Of the output, what neither has a default nor a nearest becomes 0 or empty: a
        // handshake whose default is not offered, time-outs, protocol and rate without methods.
        Put_Right = 4,
        // It was not repaired itself: it came along with another datum, as the printable bounds come with the
        // size, or the test of the output let all ports of the machine serve. Also what a driver's rule has
        // changed without telling.
        Followed = 5,
        // A custom item that was not there before, or is there no more.
        Appeared = 6,
        Gone = 7,
        // It was changed ahead of the run, by what a host does first with a choice, and the run has left it.
        Prepared = 8,
    };
};

// A row of the report.
struct PX_Datum_Change {
    PX_Datum_Id datum;
    // In UTF-8, on one line. A custom item has the name that the device shows for it, in quotes, and its
    // canonical name in parentheses where that differs.
    std::string name;
    // Nothing for what was not there, or is there no more.
    std::optional<PX_Datum_Value> before;
    std::optional<PX_Datum_Value> after;
    // What the run found, where that was changed ahead of it and the run has changed it again: `kind` and
    // `score` tell how the run came from this to `after`.
    std::optional<PX_Datum_Value> prepared{};
    PX_Change_Kind::Enum kind = PX_Change_Kind::Kept;
    // How far the nearest lies from what the run found, by the formula of its search: the nearest is looked
    // up by its name, so that of two entries of one name the first is scored, whichever the search took.
    // Nothing for another kind, and for a search that has no measure: sources, copies, the output, the raster
    // preference.
    std::optional<double> score{};
    // The ability of the datum itself, and its number in the ability flags of the domain. Custom data have
    // neither.
    std::optional<PX_Ability_Value::Enum> ability{};
    int ability_number = -1;
    // The ability that the run has read for the datum, as a rule the same: a finishing option goes by that of
    // the destination. Custom data have none.
    std::optional<PX_Ability_Value::Enum> gate{};
    // The bits of the domain's change word that the run has raised for the datum; for the size, with the bit
    // that tells of none near enough. A custom item has no bits: its name is recorded.
    long change_bits = 0;
    bool is_raised = false;
    bool is_validated = false;
    bool is_default = false;

    // Whether the run, or what was done ahead of it, has changed the value, be it there and back.
    bool is_changed() const { return before && after && kind != PX_Change_Kind::Kept; }
    // What takes hosts by surprise: the run has changed it without a change bit.
    bool is_silent() const { return is_changed() && !is_raised && kind != PX_Change_Kind::Prepared; }
};

// What a run of the plotter validator made of a choice: a row for each datum of the walk, changed or not. A
// row is changed when its value is another one; no change bit is trusted for that.
class PX_Change_Report {
public:
    // The run is the last one of the plotter validator, and `before` was taken ahead of it; `order` is what
    // it was asked to do. A missing root, validator or domain is MVNK_Error 1103, "plotter", "configuration"
    // or "capabilities". How a datum was changed is told by the rules of the standard validators, out of its
    // ability, the order, its change bit and its default flag.
    PX_Change_Report(const PX_Configuration_Snapshot& before, const PX_Plotter_Definition& plotter,
                     const PX_Validation_Order& order);
    // The same with what was done between `before` and the run, which `prepared` was taken after: scores are
    // measured against that. `failure` is what ended the run early.
    PX_Change_Report(const PX_Configuration_Snapshot& before, const PX_Configuration_Snapshot& prepared,
                     const PX_Plotter_Definition& plotter, const PX_Validation_Order& order,
                     std::optional<PX_Exception> failure = {});

    // In the order of the snapshot, what is gone last.
    const std::vector<PX_Datum_Change>& get_rows() const& { return m_rows; }
    // Null for a datum of neither side.
    const PX_Datum_Change* find(const PX_Datum_Id& datum) const&;
    // Not of a report that goes at once.
    const std::vector<PX_Datum_Change>& get_rows() const&& = delete;
    const PX_Datum_Change* find(const PX_Datum_Id& datum) const&& = delete;

    // What ended the run early, as a plain PX_Exception of the code, the texts and the trace; nothing for a
    // run that came to its end. What it did not reach is not marked as validated; it has another value only
    // where it came along with another datum or was prepared. The datum that it failed at may have another
    // value without its bit.
    const std::optional<PX_Exception>& get_failure() const& { return m_failure; }
    const std::optional<PX_Exception>& get_failure() const&& = delete;

    // How many rows have another value now, how many of those the run changed without a change bit, and how
    // many came and went.
    long get_changed() const;
    long get_silent() const;
    long get_appeared() const { return count(PX_Change_Kind::Appeared); }
    long get_gone() const { return count(PX_Change_Kind::Gone); }

    // Domain masks, as the validator told them after the run.
    long get_config_changed() const { return m_config_changed; }
    long get_caps_changed() const { return m_caps_changed; }

private:
    long count(PX_Change_Kind::Enum kind) const;

    std::vector<PX_Datum_Change> m_rows;
    std::optional<PX_Exception> m_failure;
    long m_config_changed = 0;
    long m_caps_changed = 0;
};
