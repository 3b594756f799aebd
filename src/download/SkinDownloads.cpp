#include "download/SkinDownloads.h"

#include "platform/Shell.h"
#include "state/Hosts.h"
#include "state/Sounds.h"

namespace varnhold {

using namespace Qt::StringLiterals;

void mnuSkinDL_Click(Sounds& sounds, Shell& shell, const Hosts& hosts)
{
    sounds.play(Sound::Menu);
    shell.open(u"http://"_s + hosts.forum.authority + u"/forum/viewtopic.php?p=943#943"_s);
}

} // namespace varnhold
