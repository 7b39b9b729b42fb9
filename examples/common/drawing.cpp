#include "examples/common/drawing.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <numbers>
#include <optional>
#include <rapidxml/rapidxml.hpp>
#include <string>
#include <string_view>
#include <system_error>

namespace {

constexpr std::string_view blanks = " \t\r\n";

// What a group hands down to what stands in it.
struct Stroke {
    std::optional<Drawing_Colour> colour;
    double width = 1;
    std::vector<double> dashes = {};
};

struct Named_Colour {
    std::string_view name;
    Drawing_Colour colour;
};
constexpr Named_Colour named_colours[] = {
    {"black", {0, 0, 0}},      {"white", {255, 255, 255}}, {"gray", {128, 128, 128}},
    {"red", {255, 0, 0}},      {"green", {0, 128, 0}},     {"blue", {0, 0, 255}},
    {"yellow", {255, 255, 0}}, {"cyan", {0, 255, 255}},    {"magenta", {255, 0, 255}},
    {"orange", {255, 165, 0}}, {"brown", {165, 42, 42}},
};

// Numbers with blanks or a comma between them, and the letters of a path.
class Words {
public:
    explicit Words(std::string_view text) : m_rest(text) { skip_blanks(); }

    bool is_at_end() const { return m_rest.empty(); }
    bool is_at_letter() const {
        return !m_rest.empty() && std::isalpha(static_cast<unsigned char>(m_rest[0]));
    }
    char letter() {
        const char found = m_rest.front();
        m_rest.remove_prefix(1);
        skip_blanks();
        return found;
    }
    std::optional<double> number() {
        if (m_rest.starts_with('+'))
            m_rest.remove_prefix(1);
        double value = 0;
        const auto [end, failure] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
        if (failure != std::errc() || !std::isfinite(value))
            return std::nullopt;
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
        skip_blanks();
        if (m_rest.starts_with(',')) {
            m_rest.remove_prefix(1);
            skip_blanks();
        }
        return value;
    }

private:
    void skip_blanks() { m_rest.remove_prefix(std::min(m_rest.find_first_not_of(blanks), m_rest.size())); }

    std::string_view m_rest;
};

class Reader {
    using Node = rapidxml::xml_node<>;
    using Attribute = rapidxml::xml_attribute<>;

public:
    explicit Reader(const std::filesystem::path& path) : m_path(path) {
        std::error_code ignored;
        if (std::filesystem::is_directory(path, ignored))
            fail("is a folder");
        std::ifstream file(path, std::ios::binary);
        if (!file)
            fail("cannot be opened: " + std::generic_category().message(errno));
        m_text.assign(std::istreambuf_iterator<char>(file), {});
        for (std::size_t at = 0; (at = m_text.find('\n', at)) != std::string::npos; ++at)
            m_line_ends.push_back(at);
    }

    Drawing read() {
        // To the parser it is the end.
        if (const std::size_t zero = m_text.find('\0'); zero != std::string::npos)
            fail(line_at(m_text.data() + zero) + "is broken: there is a byte of 0");
        rapidxml::xml_document<> document;
        try {
            document.parse<rapidxml::parse_validate_closing_tags>(m_text.data());
        } catch (const rapidxml::parse_error& failure) {
            fail(line_at(failure.where<char>()) + "is broken: " + failure.what());
        }
        const Node* const root = document.first_node();
        if (!root)
            fail("is broken: it has no element");
        if (std::string_view(root->name()) != "svg")
            fail("is no SVG drawing");
        read_view_box(*root);
        read_children(*root, stroke_of(*root, {}));
        if (m_drawing.lines.empty())
            fail("has no line with a stroke");
        return std::move(m_drawing);
    }

private:
    [[noreturn]] void fail(const std::string& why) const {
        throw Drawing_Error("the drawing '" + m_path.string() + "' " + why);
    }
    [[noreturn]] void fail(const Node& node, const std::string& why) const {
        fail(line_at(node.name()) + "has a '" + node.name() + "' " + why);
    }
    std::string line_at(const char* place) const {
        const auto end =
            std::ranges::lower_bound(m_line_ends, static_cast<std::size_t>(place - m_text.data()));
        return "in line " + std::to_string(1 + (end - m_line_ends.begin())) + " ";
    }
    // Empty where there is none.
    static std::string_view attribute(const Node& node, const char* name) {
        const Attribute* const found = node.first_attribute(name);
        return found ? found->value() : "";
    }

    void read_view_box(const Node& root) {
        const std::vector<double> box = numbers(root, "viewBox");
        if (box.size() != 4 || !(box[2] > 0) || !(box[3] > 0))
            fail(root, "without a viewBox of a width and a height");
        m_left = box[0];
        m_bottom = box[1] + box[3];
        m_drawing.width = box[2];
        m_drawing.height = box[3];
    }

    void read_children(const Node& parent, const Stroke& inherited) {
        for (const Node* child = parent.first_node(); child; child = child->next_sibling()) {
            const Node& node = *child;
            const std::string_view name = node.name();
            if (node.type() != rapidxml::node_element || name == "title" || name == "desc" ||
                name == "metadata")
                continue;
            if (name == "g") {
                check_attributes(node, {});
                read_children(node, stroke_of(node, inherited));
            } else if (name == "line") {
                check_attributes(node, {"x1", "y1", "x2", "y2"});
                add(node, inherited,
                    {coordinate(node, "x1"), coordinate(node, "y1"), coordinate(node, "x2"),
                     coordinate(node, "y2")});
            } else if (name == "polyline" || name == "polygon") {
                check_attributes(node, {"points"});
                std::vector<double> points = numbers(node, "points");
                if (points.size() < 4 || points.size() % 2 != 0)
                    fail(node, "without two or more whole points");
                if (name == "polygon")
                    points.insert(points.end(), {points[0], points[1]});
                add(node, inherited, points);
            } else if (name == "circle") {
                check_attributes(node, {"cx", "cy", "r"});
                read_circle(node, inherited);
            } else if (name == "path") {
                check_attributes(node, {"d"});
                read_path(node, inherited);
            } else {
                fail(node, "element, which is not understood");
            }
        }
    }

    // What would change the look of the drawing and is passed over would not be noticed.
    void check_attributes(const Node& node, std::initializer_list<std::string_view> own) const {
        constexpr std::string_view common[] = {
            "id", "stroke", "stroke-width", "stroke-dasharray", "stroke-linecap", "stroke-linejoin"};
        for (const Attribute* one = node.first_attribute(); one; one = one->next_attribute()) {
            const std::string_view name = one->name();
            if (name == "fill") {
                if (std::string_view(one->value()) != "none")
                    fail(node, "that is filled, which is not understood");
            } else if (std::ranges::find(common, name) == std::end(common) &&
                       std::ranges::find(own, name) == own.end()) {
                fail(node, "with '" + std::string(name) + "', which is not understood");
            }
        }
    }

    Stroke stroke_of(const Node& node, Stroke stroke) const {
        if (node.first_attribute("stroke"))
            stroke.colour = colour_of(node, attribute(node, "stroke"));
        if (node.first_attribute("stroke-width")) {
            stroke.width = coordinate(node, "stroke-width");
            if (stroke.width < 0)
                fail(node, "whose stroke-width is below 0");
        }
        if (node.first_attribute("stroke-dasharray"))
            stroke.dashes = dashes_of(node);
        return stroke;
    }

    // An odd number of them is taken twice; zeros alone are a solid line.
    std::vector<double> dashes_of(const Node& node) const {
        constexpr const char* name = "stroke-dasharray";
        if (attribute(node, name) == "none")
            return {};
        std::vector<double> dashes = numbers(node, name);
        if (std::ranges::any_of(dashes, [](double length) { return length < 0; }))
            fail(node, "whose stroke-dasharray has a length below 0");
        if (std::ranges::all_of(dashes, [](double length) { return length == 0; }))
            return {};
        if (dashes.size() % 2 != 0) {
            const std::vector<double> once = dashes;
            dashes.insert(dashes.end(), once.begin(), once.end());
        }
        return dashes;
    }

    std::optional<Drawing_Colour> colour_of(const Node& node, std::string_view word) const {
        if (word == "none")
            return std::nullopt;
        const auto named = std::ranges::find(named_colours, word, &Named_Colour::name);
        if (named != std::end(named_colours))
            return named->colour;
        unsigned int number = 0;
        const char* const end = word.data() + word.size();
        const bool is_number =
            word.starts_with('#') && std::from_chars(word.data() + 1, end, number, 16).ptr == end;
        const auto part = [number](int shift, unsigned int mask, unsigned int factor) {
            return static_cast<std::uint8_t>((number >> shift & mask) * factor);
        };
        if (is_number && word.size() == 7)
            return Drawing_Colour{part(16, 255, 1), part(8, 255, 1), part(0, 255, 1)};
        if (is_number && word.size() == 4)
            return Drawing_Colour{part(8, 15, 17), part(4, 15, 17), part(0, 15, 17)};
        fail(node, "with the stroke '" + std::string(word) + "', which is not understood");
    }

    double coordinate(const Node& node, const char* name) const {
        const std::vector<double> values = numbers(node, name);
        if (values.size() > 1)
            fail(node, std::string("whose ") + name + " is more than a number");
        return values.empty() ? 0 : values.front();
    }

    std::vector<double> numbers(const Node& node, const char* name) const {
        std::vector<double> values;
        for (Words words(attribute(node, name)); !words.is_at_end();) {
            const auto value = words.number();
            if (!value)
                fail(node, std::string("whose ") + name + " is not made of numbers");
            values.push_back(*value);
        }
        return values;
    }

    // One without a radius is not drawn.
    void read_circle(const Node& node, const Stroke& inherited) {
        const double radius = coordinate(node, "r");
        if (radius < 0)
            fail(node, "whose r is below 0");
        if (radius > 0)
            add(node, inherited, {coordinate(node, "cx"), coordinate(node, "cy")}, radius);
    }

    // M, L and Z; a number pair more than a letter takes is a line to there.
    void read_path(const Node& node, const Stroke& inherited) {
        std::vector<double> points;
        for (Words words(attribute(node, "d")); !words.is_at_end();) {
            if (words.is_at_letter()) {
                if (!read_step(node, inherited, words.letter(), points))
                    continue;
            } else if (points.empty()) {
                fail(node, "that does not begin with M");
            }
            const auto x = words.number();
            const auto y = words.number();
            if (!x || !y)
                fail(node, "whose d is not made of whole points");
            points.insert(points.end(), {*x, *y});
        }
        end_line(node, inherited, points);
    }

    // Whether a point comes after the letter. A closed line goes on from where it began.
    bool read_step(const Node& node, const Stroke& inherited, char letter, std::vector<double>& points) {
        if (letter == 'Z' || letter == 'z') {
            if (points.empty())
                fail(node, "that is closed before it begins");
            const std::array<double, 2> first = {points[0], points[1]};
            points.insert(points.end(), first.begin(), first.end());
            end_line(node, inherited, points);
            points.assign(first.begin(), first.end());
            return false;
        }
        if (letter == 'M')
            end_line(node, inherited, points);
        else if (letter != 'L' || points.empty())
            fail(node, std::string("with the step '") + letter + "', which is not understood here");
        return true;
    }

    // A line of less than two points is none.
    void end_line(const Node& node, const Stroke& inherited, std::vector<double>& points) {
        if (points.size() >= 4)
            add(node, inherited, points);
        points.clear();
    }

    void add(const Node& node, const Stroke& inherited, const std::vector<double>& numbers,
             double radius = 0) {
        const Stroke stroke = stroke_of(node, inherited);
        if (!stroke.colour)
            return;
        Drawing_Line line{{}, *stroke.colour, stroke.width, radius, stroke.dashes};
        for (std::size_t at = 0; at + 1 < numbers.size(); at += 2)
            line.points.push_back({numbers[at] - m_left, m_bottom - numbers[at + 1]});
        m_drawing.lines.push_back(std::move(line));
    }

    const std::filesystem::path& m_path;
    std::string m_text;  // changed in place when it is parsed
    std::vector<std::size_t> m_line_ends;
    Drawing m_drawing{};
    double m_left = 0;
    double m_bottom = 0;
};

}  // namespace

Drawing read_drawing(const std::filesystem::path& path) {
    return Reader(path).read();
}

bool Drawing_Line::is_dot() const {
    const Drawing_Point& first = points.front();
    return !(radius > 0) && std::ranges::all_of(points, [&](const Drawing_Point& point) {
        return point.x == first.x && point.y == first.y;
    });
}

Drawing_Line tessellated(const Drawing_Line& circle, int sides) {
    Drawing_Line line = circle;
    line.points.clear();
    line.radius = 0;
    const Drawing_Point centre = circle.points.front();
    for (int at = 0; at <= 4 * sides; ++at) {
        const double angle = at * std::numbers::pi / (2 * sides);
        line.points.push_back(
            {centre.x + circle.radius * std::cos(angle), centre.y + circle.radius * std::sin(angle)});
    }
    return line;
}

std::size_t Drawing::count_points() const {
    std::size_t count = 0;
    for (const Drawing_Line& line : lines)
        count += line.points.size();
    return count;
}
