#pragma once

namespace varnhold {

class Shell;
class Sounds;
struct Hosts;

/// "Download" on the skins menu: opens the forum's page where skins are offered. Fetches nothing itself.
void mnuSkinDL_Click(Sounds& sounds, Shell& shell, const Hosts& hosts);

} // namespace varnhold
