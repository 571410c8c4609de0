// The texts, a sentence a line, and the proof that no stage lacks one.
#include "content/story_texts.h"

namespace gloomdeck {

// clang-format off
constexpr std::array<std::array<std::string_view, storyTextCount>, campaignCount> StoryTexts{{
    // Intro
    {"Learn about the game.",

     "On the next screen, there are seven columns of items. "
     "Click on the bottom item of a column to encounter it. "
     "Some items require things before you can encounter them. "
     "For example, a door requires a key.  "
     "On the right is a list of things you have. "
     "Click on some of those icons to use them.",

     "You've gotten the hang of it. "
     "Good Job! "
     "Now try another level.",

     "Congratulations! "
     "You have completed the introductory campaign. "
     "Try a different one next, or play a single scenario from the start screen."},

    // Back and Forth
    {"Stock up, then go adventuring.",

     "You have gained entry to the treasury. "
     "Take as much as you can, but avoid the thieves, who will steal randomly from you.",

     "You go out to the ruins of a vanished empire.",

     "You return to the treasury to replenish your supplies.",

     "You head out to the dangerous dungeon to finish your adventuring.",

     "You successfully completed this adventure."},

    // Thieves
    {"Follow the thieves, reclaim the Jewel.",

     "A band of wandering thieves has stolen a precious jewel which belonged to your ancestors. "
     "You have entered the Thieves' Den in order get information on the location of the Jewel.",

     "Stunned by your ability, the head thief informs you of the location of the mountain hideout where the Jewel is being kept. "
     "You quickly journey there.",

     "You have defeated the thieves and reclaimed the precious Jewel of your ancestors."},
}};
// clang-format on

namespace {

constexpr bool everyCampaignHasItsTexts() {
    for (std::size_t campaign = 0; campaign < CampaignTable.size(); ++campaign) {
        const int last = CampaignTable[campaign].scenarioCount + 1;
        for (int number = 0; number < storyTextCount; ++number)
            if (StoryTexts[campaign][static_cast<std::size_t>(number)].empty() != (number > last))
                return false;
    }
    return true;
}
static_assert(everyCampaignHasItsTexts());

}  // namespace

std::string_view storyText(int campaign, std::int64_t number) {
    if (campaign < 0 || campaign >= campaignCount) return {};
    if (number < 0 || number >= storyTextCount) return {};
    return StoryTexts[static_cast<std::size_t>(campaign)][static_cast<std::size_t>(number)];
}

}  // namespace gloomdeck
