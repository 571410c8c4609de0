// Moving through a campaign.
#pragma once

namespace gloomdeck {

/// Deals the board of the campaign's current stage and shows its story page, unless a switch skips it.
void startCampaignStage();

/// Goes on to the next stage; only called when there is one.
void nextCampaignStage();

}  // namespace gloomdeck
