#include "screens/main_view.h"

#include "numbers/request_view_model.h"

#include <algorithm>
#include <array>

namespace orl {

namespace {

struct TabRow {
    Tab tab;
    const char *label;
    const char *image;
};

constexpr std::array tabRows{
    TabRow{Tab::home, "Messages", "ic_chat"},
    TabRow{Tab::tMail, "EMail", "ic_email"},
    TabRow{Tab::fakeGenerator, "Identity", "ic_id_card"},
    TabRow{Tab::profile, "Settings", "ic_settings"},
};

int rowOf(Tab tab) {
    const auto found =
        std::find_if(tabRows.begin(), tabRows.end(), [tab](const TabRow &row) { return row.tab == tab; });
    return found == tabRows.end() ? 0 : int(found - tabRows.begin());
}

} // namespace

MainView::MainView(Process &process, const AdPlaces &ads, RequestViewModel &request,
                   InternetViewModel &internet, CopyViewModel &copy, MailServiceViewModel &mailService,
                   TMailAlertViewModel &mailAlert, AppConfigViewModel &appVM, QObject *parent)
    : QObject(parent),
      request_(request),
      home_(process, ads, request, internet, copy),
      mail_(process, mailService, internet, copy, mailAlert, appVM),
      fakeGenerator_(process, ads, request, internet, copy),
      settings_(process, request, internet, copy),
      selectedIndex_(rowOf(request.selectedTab())),
      tabs_({"label", "image"}) {
    connect(&request_, &RequestViewModel::selectedTabChanged, this, &MainView::followSelectedTab);
    listTabs();
    if (tabRows[size_t(selectedIndex_)].tab == Tab::tMail) mail_.appear();
}

void MainView::select(int index) {
    if (index >= 0 && index < int(tabRows.size())) request_.setSelectedTab(tabRows[size_t(index)].tab);
}

void MainView::followSelectedTab() {
    const int row = rowOf(request_.selectedTab());
    if (row == selectedIndex_) return;
    if (tabRows[size_t(selectedIndex_)].tab == Tab::tMail) mail_.disappear();
    selectedIndex_ = row;
    listTabs();
    Q_EMIT selectedIndexChanged();
    if (tabRows[size_t(row)].tab == Tab::home) home_.appear();
    if (tabRows[size_t(row)].tab == Tab::tMail) mail_.appear();
    if (tabRows[size_t(row)].tab == Tab::fakeGenerator) fakeGenerator_.appear();
    if (tabRows[size_t(row)].tab == Tab::profile) settings_.appear();
}

void MainView::listTabs() {
    QList<KeyedListModel::Row> rows;
    for (const TabRow &row : tabRows) {
        const QString label = QString::fromLatin1(row.label);
        const bool selected = int(rows.size()) == selectedIndex_;
        rows << KeyedListModel::Row{
            label,
            {label, QString::fromLatin1(row.image) + (selected ? QStringLiteral("_fill") : QString())}};
    }
    tabs_.setRows(rows);
}

} // namespace orl
