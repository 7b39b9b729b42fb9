#include "toolkit/report/findings_table.h"

#include <array>
#include <string>

#include "toolkit/report/columns.h"
#include "toolkit/report/text.h"

void px_print_findings(std::ostream& out, const std::vector<PX_Device_Finding>& findings) {
    if (findings.empty()) {
        out << "Nothing is wrong with the device.\n";
        return;
    }
    std::vector<std::array<std::string, 4>> lines = {{"Domain", "Object", "Fault", "What comes of it"}};
    // A name may hold what a terminal would obey.
    for (const PX_Device_Finding& finding : findings)
        lines.push_back({px_on_one_line(px_domain_text(finding)), px_on_one_line(finding.object),
                         px_on_one_line(px_fault_text(finding.fault)),
                         px_on_one_line(px_effect_text(finding))});
    px_print_columns(out, lines);
    out << '\n' << findings.size() << (findings.size() == 1 ? " finding.\n" : " findings.\n");
}
