#include "examples/common/drawing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>

#include "tests/support/own_path.h"

namespace {

class Drawings : public testing::Test {
protected:
    ~Drawings() override { std::filesystem::remove(m_path); }
    Drawing read(const std::string& inside, const std::string& root = "viewBox='10 20 100 50'") {
        return read_file("<svg xmlns='http://www.w3.org/2000/svg' " + root + ">" + inside + "</svg>");
    }
    Drawing read_file(const std::string& content) {
        std::ofstream(m_path, std::ios::binary) << content;
        return read_drawing(m_path);
    }

private:
    const std::filesystem::path m_path = support::own_path();
};

std::string points_of(const Drawing_Line& line) {
    std::string text;
    for (const Drawing_Point& point : line.points)
        text += std::to_string(std::lround(point.x)) + "," + std::to_string(std::lround(point.y)) + " ";
    return text;
}

TEST_F(Drawings, EveryShapeBecomesLinesFromTheLowerLeft) {
    const struct {
        std::string shape;
        std::vector<std::string> lines;
    } rows[] = {
        {"<line x1='10' y1='20' x2='110' y2='70'/>", {"0,50 100,0 "}},
        {"<line x2='15'/>", {"-10,70 5,70 "}},
        {"<polyline points='10,70 20,70,30 60'/>", {"0,0 10,0 20,10 "}},
        {"<polygon points='10 70 20 70 30 60'/>", {"0,0 10,0 20,10 0,0 "}},
        {"<path d='M10,70L20 70 30-30Z L 40 60'/>", {"0,0 10,0 20,100 0,0 ", "0,0 30,10 "}},
        {"<path d='M 10 70 20 70 M 1e1 60 L +20 60'/>", {"0,0 10,0 ", "0,10 10,10 "}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.shape);
        const Drawing drawing = read("<g stroke='black'>" + row.shape + "</g>");
        EXPECT_EQ(drawing.width, 100);
        EXPECT_EQ(drawing.height, 50);
        ASSERT_EQ(drawing.lines.size(), row.lines.size());
        for (std::size_t at = 0; at < row.lines.size(); ++at)
            EXPECT_EQ(points_of(drawing.lines[at]), row.lines[at]);
    }
}

TEST_F(Drawings, StrokesComeDownFromTheGroups) {
    const Drawing drawing = read(
        "<line x2='1'/><g stroke='red' stroke-width='3'><line x2='1'/><g stroke='#00f'><line x2='1'/>"
        "<line x2='1' stroke='none'/><line x2='1' stroke='#102030' stroke-width='0.5'/></g></g>");
    ASSERT_EQ(drawing.lines.size(), 3U);
    EXPECT_EQ(drawing.lines[0].colour, (Drawing_Colour{255, 0, 0}));
    EXPECT_EQ(drawing.lines[1].colour, (Drawing_Colour{0, 0, 255}));
    EXPECT_EQ(drawing.lines[1].width, 3);
    EXPECT_EQ(drawing.lines[2].colour, (Drawing_Colour{16, 32, 48}));
    EXPECT_EQ(drawing.lines[2].width, 0.5);
}

TEST_F(Drawings, CirclesDotsAndDashes) {
    const Drawing drawing = read(
        "<g stroke='red' stroke-dasharray='3 1 2'><circle cx='15' cy='60' r='5'/><circle r='0'/>"
        "<line x2='1' stroke-dasharray='none'/><path d='M 9 9 9 9' stroke-dasharray='0 0'/></g>");
    ASSERT_EQ(drawing.lines.size(), 3U);
    const Drawing_Line& circle = drawing.lines[0];
    EXPECT_EQ(circle.radius, 5);
    EXPECT_EQ(points_of(circle), "5,10 ");
    EXPECT_EQ(circle.dashes, (std::vector<double>{3, 1, 2, 3, 1, 2}));
    EXPECT_TRUE(drawing.lines[1].dashes.empty() && drawing.lines[2].dashes.empty());
    EXPECT_TRUE(!circle.is_dot() && !drawing.lines[1].is_dot() && drawing.lines[2].is_dot());
    const Drawing_Line sides = tessellated(circle, 2);
    ASSERT_EQ(sides.points.size(), 9U);
    EXPECT_NEAR(sides.points[2].y, 15, 1e-9);
    EXPECT_NEAR(sides.points[8].x, 10, 1e-9);
    EXPECT_EQ(sides.radius, 0);
}

TEST_F(Drawings, WhatIsNotUnderstoodIsNamedWithItsLine) {
    const struct {
        std::string inside;
        std::string told;
    } rows[] = {
        {"\n<ellipse rx='3'/>", "in line 2 has a 'ellipse' element"},
        {"<circle stroke='black' r='-1'/>", "r is below 0"},
        {"<line stroke='black' stroke-dasharray='3 -1'/>", "a length below 0"},
        {"\n\n<g transform='scale(2)'/>", "in line 3 has a 'g' with 'transform'"},
        {"<line stroke='black' style='stroke:red'/>", "'style'"},
        {"<polygon points='1,1 2,2' fill='red'/>", "filled"},
        {"<line stroke='reddish'/>", "stroke 'reddish'"},
        {"<line stroke='#12345'/>", "stroke '#12345'"},
        {"<line stroke='black' x1='1mm'/>", "x1 is not made of numbers"},
        {"<line stroke='black' x1='inf'/>", "x1 is not made of numbers"},
        {"<polyline points='1,2,3'/>", "whole points"},
        {"<path d='M 1 1 C 1 1 2 2 3 3'/>", "the step 'C'"},
        {"<path d='L 1 1 2 2'/>", "the step 'L'"},
        {"<path d='Z'/>", "closed before it begins"},
        {"<path d='M 1 1 2'/>", "whole points"},
        {"<line x2='1'/>", "has no line with a stroke"},
        {"<g>", "is broken"},
    };
    const auto told_by = [](const auto& reading) {
        try {
            reading();
        } catch (const Drawing_Error& failure) {
            return std::string(failure.what());
        }
        return std::string("nothing");
    };
    for (const auto& row : rows)
        EXPECT_NE(told_by([&] { read(row.inside); }).find(row.told), std::string::npos)
            << told_by([&] { read(row.inside); });
    EXPECT_NE(told_by([&] { read("", "viewBox='0 0 0 5'"); }).find("viewBox"), std::string::npos);
    EXPECT_NE(told_by([&] { read_file("<html/>"); }).find("no SVG"), std::string::npos);
    EXPECT_NE(told_by([&] { read_file(""); }).find("is broken"), std::string::npos);
    EXPECT_NE(told_by([] { read_drawing("/no/such"); }).find("No such file"), std::string::npos);
}

}  // namespace
