// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "about/about_controls.h"

#include <array>

namespace about {
namespace {

using platform::ControlRow;
using enum platform::Kind;

constexpr auto link = platform::FontSize::medium;
constexpr auto centred = Qt::AlignHCenter;

// clang-format off
constexpr auto rows = std::to_array<ControlRow>({
    {.name = "Label2", .index = 0, .kind = label, .place = {180, 240, 5685, 840}, .text = "Le but du jeu, c'est de crever toutes les balles. Mais cela n'est possible que si deux balles de même couleur sont côte à côte. Alors toutes les balles mitoyennes et de même couleur disparaîtront.", .wraps = true},
    {.name = "Label2", .index = 5, .kind = label, .place = {180, 3270, 5685, 840}, .text = "N'hésitez pas à venir visiter le site de l'auteur pour découvrir pleins d'autres jeux, tous gratuits comme celui ci.", .wraps = true},
    {.name = "Label2", .index = 4, .kind = label, .place = {180, 2565, 5685, 720}, .text = "Vous pouvez également modifier le nombre de couleurs des balles, ce qui complique atrocement la stratégie à développer pour parvenir à la réussite.", .wraps = true},
    {.name = "Label2", .index = 3, .kind = label, .place = {180, 1920, 5685, 660}, .text = "Vous pouvez modifier le nombre de colonnes et de lignes (donc le nombre de balles à crever).", .wraps = true},
    {.name = "Label2", .index = 1, .kind = label, .place = {180, 1065, 5685, 435}, .text = "Plus vous creverez de balles d'un seul clic et plus vous marquerez de points.", .wraps = true},
    {.name = "Label1", .index = 2, .kind = label, .place = {330, 4560, 1650, 330}, .text = "Coucou !!!", .toolTip = "Envoyer un mail a l'auteur", .size = link, .align = centred},
    {.name = "Label1", .index = 1, .kind = label, .place = {2190, 4545, 1875, 330}, .text = "Site de l'auteur", .toolTip = "Plein d'autres jeux", .size = link, .align = centred},
    {.name = "Label1", .index = 0, .kind = label, .place = {4275, 4530, 1650, 330}, .text = "Retour", .size = link, .align = centred},
    {.name = "Label2", .index = 2, .kind = label, .place = {180, 1485, 5685, 450}, .text = "Si il ne reste aucune balle à la fin de la partie votre score est doublé.", .wraps = true},
    {.name = "ip", .kind = picture, .place = {1770, 210, 300, 300}, .picture = "ip.gif"},
    {.name = "ig", .kind = picture, .place = {0, 510, 300, 300}, .picture = "ig.gif"},
    {.name = "ij", .kind = picture, .place = {1395, 150, 300, 300}, .picture = "ij.gif"},
    {.name = "iv", .kind = picture, .place = {270, 0, 300, 300}, .picture = "iv.gif"},
    {.name = "ir", .kind = picture, .place = {960, 120, 300, 300}, .picture = "ir.gif"},
    {.name = "ib", .kind = picture, .place = {600, 45, 300, 300}, .picture = "ib.gif"},
});
// clang-format on

}  // namespace

std::span<const ControlRow> controls() {
    return rows;
}

}  // namespace about
