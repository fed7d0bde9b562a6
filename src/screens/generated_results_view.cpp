#include "screens/generated_results_view.h"

namespace orl {

QList<ExtraInfoBuilder> sectionsOf(const FakeIdentity &identity) {
    return {
        {std::nullopt, std::nullopt, identity.more_section},
        {QStringLiteral("Phone"), QStringLiteral("iphone.homebutton"), identity.phone_section},
        {QStringLiteral("Body Features"), QStringLiteral("person.fill"), identity.body_section},
        {QStringLiteral("Internet"), QStringLiteral("globe"), identity.internet_section},
        {QStringLiteral("Other"), QStringLiteral("info.circle.fill"), identity.other_section},
    };
}

GeneratedResultsView::GeneratedResultsView(CopyViewModel &copy, QObject *parent)
    : QObject(parent), copy_(copy), rows_({"section", "icon", "title", "content", "first", "last"}) {
    connect(&copy_, &CopyViewModel::copiedChanged, this, [this] {
        if (!copy_.copied()) setCopiedTitle({});
    });
}

void GeneratedResultsView::show(const FakeIdentity &identity, const QStringList &conditions) {
    identity_ = identity;
    conditions_ = conditions;
    QList<KeyedListModel::Row> rows;
    for (const ExtraInfoBuilder &section : sectionsOf(identity)) {
        const QList<ExtraInfo> &infos = section.extrasInfo;
        for (qsizetype i = 0; i < infos.size(); ++i) {
            rows << KeyedListModel::Row{infos[i].title,
                                        {section.headerTitle.value_or(QString()),
                                         section.headerIcon.value_or(QString()), infos[i].title,
                                         infos[i].content, i == 0, i + 1 == infos.size()}};
        }
    }
    rows_.setRows(rows);
    Q_EMIT shown();
}

void GeneratedResultsView::copyName() {
    copy(QStringLiteral("name"), identity_.full_name);
}

void GeneratedResultsView::copyAddress() {
    copy(QStringLiteral("address"), identity_.address);
}

void GeneratedResultsView::tap(int row) {
    if (row < 0 || row >= rows_.count()) return;
    copy(rows_.value(row, "title").toString(), rows_.value(row, "content").toString());
}

void GeneratedResultsView::copy(const QString &title, const QString &content) {
    copy_.copy(content);
    setCopiedTitle(title);
}

void GeneratedResultsView::setCopiedTitle(const QString &title) {
    copiedTitle_ = title;
    Q_EMIT copiedTitleChanged();
}

} // namespace orl
