#include "mainwindow/toolbar_buttons.h"

#include <stdexcept>

namespace mainwindow {
namespace {

constexpr ToolbarButton kButtons[] = {
    {"save", "メインモニタを名前を付けて保存", false},
    {"clear", "メインモニタをクリア", true},
    {"run", "監視を開始", false},
    {"stop", "監視を停止", true},
    {"exit", "Veskar_Lookoutを終了", false},
};

// Pixel art, one character per pixel; '.' lets the button show through.
using Art = const char* const[kToolbarImageSize];

constexpr Art kSave = {
    "................", ".kkkkkkkkkkkkk..", ".kbbsssssssbbbk.", ".kbbsskssssbbbk.",
    ".kbbsskssssbbbk.", ".kbbsskssssbbbk.", ".kbbsssssssbbbk.", ".kbbbbbbbbbbbbk.",
    ".kbwwwwwwwwwwbk.", ".kbwddddddddwbk.", ".kbwwwwwwwwwwbk.", ".kbwddddddddwbk.",
    ".kbwwwwwwwwwwbk.", ".kbwwwwwwwwwwbk.", ".kkkkkkkkkkkkkk.", "................",
};
constexpr Art kClear = {
    ".kkkkkkkkk......", ".kwwwwwwwkk.....", ".kwwwwwwwkwk....", ".kwdddddwkkkk...",
    ".kwwwwwwwwwwk...", ".kwddddddddwk...", ".kwwwwwwwwwwk...", ".kwddddddddwk...",
    ".kwwwwwwrrwwkrr.", ".kwdddddrrrwrrr.", ".kwwwwwwwrrrrr..", ".kwdddddddrrr...",
    ".kwwwwwwwrrrrr..", ".kwwwwwwrrrwrrr.", ".kkkkkkkrrkkkrr.", "................",
};
constexpr Art kRun = {
    "................", "................", "....GG..........", "....GggG........",
    "....GgggG.......", "....GgggggG.....", "....GgggggggG...", "....GgggggggggG.",
    "....GgggggggggG.", "....GgggggggG...", "....GgggggG.....", "....GgggG.......",
    "....GggG........", "....GG..........", "................", "................",
};
constexpr Art kStop = {
    "................", "................", "..RRRRRRRRRRRR..", "..RrrrrrrrrrrR..",
    "..RrrrrrrrrrrR..", "..RrrrrrrrrrrR..", "..RrrrrrrrrrrR..", "..RrrrrrrrrrrR..",
    "..RrrrrrrrrrrR..", "..RrrrrrrrrrrR..", "..RrrrrrrrrrrR..", "..RrrrrrrrrrrR..",
    "..RrrrrrrrrrrR..", "..RRRRRRRRRRRR..", "................", "................",
};
constexpr Art kExit = {
    "................", ".kkkkkkkk.......", ".knnnnnnk.......", ".knnnnnnk.......",
    ".knnnnnnk..g....", ".knnnnnnk..gg...", ".knnnnnnk..ggg..", ".knnnnggggggggg.",
    ".knnnnggggggggg.", ".knnnnnnk..ggg..", ".knnnnynk..gg...", ".knnnnnnk..g....",
    ".knnnnnnk.......", ".knnnnnnk.......", ".kkkkkkkk.......", "................",
};
constexpr const Art* kArt[] = {&kSave, &kClear, &kRun, &kStop, &kExit};

std::uint32_t Pixel(char c) {
    switch (c) {
        case 'k': return 0xFF202020;  // outline
        case 'w': return 0xFFFFFFFF;
        case 'b': return 0xFF1450B4;  // disk blue
        case 's': return 0xFFC8C8C8;  // metal
        case 'd': return 0xFF808080;  // ruled lines
        case 'r': return 0xFFDC1E1E;
        case 'R': return 0xFF8C0000;
        case 'g': return 0xFF28AA28;
        case 'G': return 0xFF006400;
        case 'n': return 0xFFA06432;  // door
        case 'y': return 0xFFFFD200;  // knob
        default: return 0;
    }
}

}  // namespace

std::span<const ToolbarButton> ToolbarButtons() { return kButtons; }

ToolbarImage ToolbarButtonImage(std::size_t button) {
    if (button >= std::size(kArt)) throw std::out_of_range("toolbar button");
    ToolbarImage image{};
    const Art& art = *kArt[button];
    for (int y = 0; y < kToolbarImageSize; ++y) {
        for (int x = 0; x < kToolbarImageSize; ++x) image[y * kToolbarImageSize + x] = Pixel(art[y][x]);
    }
    return image;
}

}  // namespace mainwindow
