// The rows of the list, the marked one inverted.
#include "content/screens/selection_list.h"

#include <string_view>

#include "content/campaigns.h"
#include "content/scenarios.h"
#include "platform/draw.h"
#include "platform/palette.h"
#include "shell/widgets/layout.h"
#include "shell/widgets/panels.h"

namespace gloomdeck {

namespace {

constexpr Rect listFrame{259, 31, 401, 193};

std::string_view entryName(int tab, int row) {
    if (tab == selection_tab::campaigns) return campaignRow(row).name;
    return scenarioRow(scenarioAtPosition(row)).name;
}

void drawEntry(const Button& list, int row, std::string_view name) {
    const bool marked = row == list.selected;
    const int y = list.y + list.cellHeight * row;
    fillBox(list.x, y, list.x + list.width, y + list.cellHeight, marked ? colour::edge : colour::black);
    drawText(list.x + 8, y + 2, name, marked ? colour::face : colour::edge);
}

}  // namespace

int selectionListLength(int tab) {
    return tab == selection_tab::campaigns ? campaignCount : scenarioTableSize;
}

void drawSelectionList() {
    const int tab = widget(id::tabs).selected;
    const Button& list = widget(id::list);
    frameBox(listFrame.x1, listFrame.y1, listFrame.x2, listFrame.y2);
    for (int row = 0; row < selectionListLength(tab); ++row) drawEntry(list, row, entryName(tab, row));
}

}  // namespace gloomdeck
