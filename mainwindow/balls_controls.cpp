// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "mainwindow/balls_controls.h"

#include <array>

namespace mainwindow {
namespace {

using platform::ControlRow;
using platform::FontSize;
using enum platform::Kind;

constexpr auto normalFace = "button-normal.gif";
constexpr auto hoverFace = "button-hover.gif";
constexpr auto centred = Qt::AlignHCenter;
constexpr auto resetTip = "Remettre à zéro le meilleur score de ce niveau de difficulté.";

// clang-format off
constexpr auto inWindow = std::to_array<ControlRow>({
    {.name = "Frame2", .kind = frame, .place = {6000, 45, 2670, 3660}},
    {.name = "Frame1", .kind = frame, .place = {1020, 660, 3660, 2580}, .hidden = true},
    {.name = "BTN", .index = 1, .kind = picture, .place = {1995, 4950, 1140, 300}, .picture = hoverFace, .hidden = true},
    {.name = "BTN", .index = 0, .kind = picture, .place = {1995, 4605, 1140, 300}, .picture = normalFace, .hidden = true},
});

constexpr auto inFrame1 = std::to_array<ControlRow>({
    {.name = "ib", .kind = picture, .place = {945, 1320, 300, 300}, .picture = "ib.gif"},
    {.name = "ir", .kind = picture, .place = {1305, 1395, 300, 300}, .picture = "ir.gif"},
    {.name = "iv", .kind = picture, .place = {615, 1275, 300, 300}, .picture = "iv.gif"},
    {.name = "ij", .kind = picture, .place = {1740, 1425, 300, 300}, .picture = "ij.gif"},
    {.name = "ig", .kind = picture, .place = {345, 1785, 300, 300}, .picture = "ig.gif"},
    {.name = "ip", .kind = picture, .place = {2115, 1485, 300, 300}, .picture = "ip.gif"},
    {.name = "Label7", .kind = label, .place = {60, 585, 3555, 1950}, .text = "Meilleur score !!!", .size = FontSize::large, .align = centred, .wraps = true, .colour = qRgb(192, 0, 0)},
    {.name = "Label1", .kind = label, .place = {60, -15, 3555, 555}, .text = "Terminé", .size = FontSize::large, .align = centred},
});

constexpr auto inFrame2 = std::to_array<ControlRow>({
    {.name = "Check1", .kind = checkBox, .place = {75, 1095, 1770, 210}, .text = "Activer le son"},
    {.name = "Text1", .index = 0, .kind = textBox, .place = {2160, 270, 405, 285}, .text = "20"},
    {.name = "Text1", .index = 1, .kind = textBox, .place = {1575, 270, 405, 285}, .text = "25"},
    {.name = "Option1", .index = 0, .kind = option, .place = {75, 15, 1100, 210}, .text = "2 couleurs"},
    {.name = "Option1", .index = 1, .kind = option, .place = {75, 225, 1100, 210}, .text = "3 couleurs"},
    {.name = "Option1", .index = 2, .kind = option, .place = {75, 435, 1100, 210}, .text = "4 couleurs"},
    {.name = "Option1", .index = 3, .kind = option, .place = {75, 645, 1100, 210}, .text = "5 couleurs"},
    {.name = "Option1", .index = 4, .kind = option, .place = {75, 855, 1100, 210}, .text = "6 couleurs"},
    {.name = "Image1", .kind = picture, .place = {1095, 3165, 480, 480}, .toolTip = "A Propos / Aide", .picture = "help.ico"},
    {.name = "Shape1", .kind = shape, .place = {75, 1350, 2550, 780}},
    {.name = "Label3", .kind = label, .place = {1380, 2250, 435, 210}, .text = "points", .autoSize = true},
    {.name = "LabBtn", .index = 2, .kind = label, .place = {1035, 1800, 705, 165}, .text = "Zéro", .toolTip = resetTip, .align = centred},
    {.name = "LabBtn", .index = 1, .kind = label, .place = {1770, 3420, 705, 165}, .text = "Quitter", .toolTip = "Quitter la partie", .align = centred},
    {.name = "LabBtn", .index = 0, .kind = label, .place = {15, 3405, 1095, 165}, .text = "Nouvelle", .toolTip = "Recommencer une partie", .align = centred},
    {.name = "ImBTN", .index = 2, .kind = picture, .place = {810, 1740, 1140, 300}, .picture = normalFace},
    {.name = "ImBTN", .index = 1, .kind = picture, .place = {1545, 3360, 1140, 300}, .picture = normalFace},
    {.name = "ImBTN", .index = 0, .kind = picture, .place = {-15, 3360, 1140, 300}, .picture = normalFace},
    {.name = "l1", .index = 0, .kind = label, .place = {75, 2505, 2535, 255}},
    {.name = "l1", .index = 3, .kind = label, .place = {75, 2805, 2550, 255}},
    {.name = "sc", .kind = label, .place = {75, 2250, 1215, 210}, .text = "0", .align = Qt::AlignRight},
    {.name = "Label4", .kind = label, .place = {1470, 1425, 1005, 210}, .text = "0", .bold = true},
    {.name = "Label5", .index = 2, .kind = label, .place = {2010, 330, 105, 195}, .text = "X", .autoSize = true},
    {.name = "Label5", .index = 1, .kind = label, .place = {2175, 15, 465, 195}, .text = "Lignes", .autoSize = true},
    {.name = "Label5", .index = 0, .kind = label, .place = {1350, 15, 720, 195}, .text = "Colonnes", .autoSize = true},
    {.name = "hsc", .index = 0, .kind = label, .place = {5145, 210, 1035, 210}, .text = "0", .hidden = true},
    {.name = "hsc", .index = 1, .kind = label, .place = {5145, 450, 1035, 210}, .text = "0", .hidden = true},
    {.name = "hsc", .index = 2, .kind = label, .place = {5145, 705, 1035, 210}, .text = "0", .hidden = true},
    {.name = "hsc", .index = 3, .kind = label, .place = {5145, 945, 1035, 210}, .text = "0", .hidden = true},
    {.name = "hsc", .index = 4, .kind = label, .place = {5145, 1200, 1035, 210}, .text = "0", .hidden = true},
    {.name = "Label2", .kind = label, .place = {180, 1410, 1200, 210}, .text = "Score à battre:", .bold = true, .autoSize = true},
});
// clang-format on

}  // namespace

std::span<const ControlRow> controlsInWindow() {
    return inWindow;
}

std::span<const ControlRow> controlsInFrame1() {
    return inFrame1;
}

std::span<const ControlRow> controlsInFrame2() {
    return inFrame2;
}

}  // namespace mainwindow
