#include "search/ListExport.h"

#include "platform/BusyPointer.h"
#include "platform/FileDialogs.h"
#include "search/ResultList.h"
#include "search/SearchView.h"
#include "state/ErrorReport.h"
#include "state/Paths.h"
#include "state/Sounds.h"

#include <QScopeGuard>

#include <algorithm>

namespace varnhold {

using namespace Qt::StringLiterals;

void cmdExport_Click(const ListExportServices& services)
{
    SearchView& view = services.view;
    const QString before = view.caption();
    view.setCaption(u"Saving"_s);
    const std::optional<ChosenFile> chosen =
        services.dialogs.chooseSavePath({.title = u"Choose a location to Save:"_s,
                                         .startFolder = services.paths.root,
                                         .filter = u"ID List (*.lst;*.txt)|*.lst;*.txt|All Files (*.*)|*.*"_s,
                                         .defaultExtension = u"*.txt"_s,
                                         .fileName = {},
                                         .asksBeforeOverwriting = true});
    if (!chosen) {
        view.setCaption(before);
        return;
    }
    const bool saved = reporting(services.boxes, DescriptionLabel::WithBlank, [&] {
        const int count = services.results.count();
        const auto ready = qScopeGuard([&] {
            view.hideProgress();
            view.enableSearch(true);
            if (count > 0)
                view.selectRow(count - 1);
        });
        const auto busy = busyPointer(view);
        view.showProgress(std::max(count, 1));
        view.enableSearch(false);
        exportList(services.results.rows(), chosen->path, [&](int row) { view.walkTo(row); });
    });
    view.setCaption(saved ? u"Save Complete"_s : before);
    if (saved)
        services.sounds.play(Sound::Close);
}

} // namespace varnhold
