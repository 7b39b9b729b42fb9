#pragma once

#include <string>
#include <vector>

#include "toolkit/marvcon/marvcon.h"

// Which datum. A custom item has no number: it goes by its canonical name, and by its place where several
// items bear one name. A run sees the first of them only.
struct PX_Datum_Id {
    PX_Domain_Mask::Enum domain;
    int number = -1;  // in the config flags of the domain
    std::wstring item{};
    int place = 0;  // among the items of that name

    friend bool operator==(const PX_Datum_Id&, const PX_Datum_Id&) = default;
};

// A value as it is compared and as a person reads it. `exact` is a key: two values are the same when their
// keys are, to the last bit of a number, and nothing else can be read from it. `shown` is UTF-8, in one line
// or in several with '\n' between them: reports go to terminals, logs and files, which take bytes, and one
// encoding is the same where wide characters are of 16 bits. It leaves out what is too much for a line, so
// that values which are not the same may be shown alike.
//
// The value of a chosen catalogue entry is its name and what the name stood for: the same name may stand for
// another thing on another device.
struct PX_Datum_Value {
    PX_Datum_Id datum;
    std::string name;  // of the datum, such as "Size"; that of a custom item is in quotes
    std::string exact;
    std::string shown;
};

// Every datum of a configuration as it was at one moment, what has no change bit too. The configuration may
// change or go afterwards.
//
// The port name and the type of the output are one decision and one datum here, with the number of the type;
// whether the plot goes to a file, and whether all ports of the machine are valid, belong to it.
class PX_Configuration_Snapshot {
public:
    // A missing domain is MVNK_Error 1103, "configuration". What fails in a clone comes on as a plain
    // PX_Exception, with this among the names of its trace; a clone that did not come into being is
    // MVNK_Memory_Exception 1101. No memory is else std::bad_alloc, here and in all that is made of
    // snapshots.
    explicit PX_Configuration_Snapshot(const PX_Plotter_Configuration& configuration);

    // By domain, each in the order of the walk, the custom items last in their own order: media, pens,
    // resolution, colour and memory, output, strings, custom data.
    const std::vector<PX_Datum_Value>& get_values() const& { return m_values; }
    // Null for a datum that was not there.
    const PX_Datum_Value* find(const PX_Datum_Id& datum) const&;
    // Not of a snapshot that goes at once.
    const std::vector<PX_Datum_Value>& get_values() const&& = delete;
    const PX_Datum_Value* find(const PX_Datum_Id& datum) const&& = delete;

    // What the nearest searches measured against. The colours' is null where the configuration had none.
    const PX_Media_Configuration& get_media() const& { return *m_media; }
    const PX_PhysPen_Configuration& get_pens() const& { return *m_pens; }
    const PX_ResColorMem_Settings* get_color_settings() const& { return m_color_settings.get(); }
    const PX_Media_Configuration& get_media() const&& = delete;
    const PX_PhysPen_Configuration& get_pens() const&& = delete;
    const PX_ResColorMem_Settings* get_color_settings() const&& = delete;

private:
    std::vector<PX_Datum_Value> m_values;
    // Nobody writes into them: copies of a snapshot share them.
    PX_Smart_Pointer<PX_Media_Configuration> m_media;
    PX_Smart_Pointer<PX_PhysPen_Configuration> m_pens;
    PX_Smart_Pointer<PX_ResColorMem_Settings> m_color_settings;
};
