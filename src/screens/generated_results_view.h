#pragma once

#include "identity/fake_identity.h"
#include "screens/copy_view_model.h"
#include "screens/keyed_list_model.h"

#include <optional>

namespace orl {

/// One section of an identity as it is shown.
struct ExtraInfoBuilder {
    std::optional<QString> headerTitle; ///< none: a section without a heading
    std::optional<QString> headerIcon;
    QList<ExtraInfo> extrasInfo;
};

/// The sections of an identity in the order in which they are shown.
QList<ExtraInfoBuilder> sectionsOf(const FakeIdentity &identity);

/// An identity, row by row; a tap copies what a row holds.
class GeneratedResultsView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by FakeGeneratorView")
    Q_PROPERTY(QString fullName READ fullName NOTIFY shown)
    Q_PROPERTY(QString address READ address NOTIFY shown)
    Q_PROPERTY(QString picture READ picture NOTIFY shown)
    Q_PROPERTY(QString gender READ gender NOTIFY shown)
    Q_PROPERTY(QStringList conditions READ conditions NOTIFY shown)
    Q_PROPERTY(orl::KeyedListModel *rows READ rows CONSTANT)
    Q_PROPERTY(QString copiedTitle READ copiedTitle NOTIFY copiedTitleChanged)
public:
    explicit GeneratedResultsView(CopyViewModel &copy, QObject *parent = nullptr);

    /// `conditions` are three labels: what was asked for, which need not be what the identity says.
    void show(const FakeIdentity &identity, const QStringList &conditions);

    QString fullName() const { return identity_.full_name; }
    QString address() const { return identity_.address; }
    QString picture() const { return rawValue(identity_.gender); } ///< the name of a drawing
    QString gender() const { return caseName(identity_.gender); }
    const QStringList &conditions() const { return conditions_; }
    bool ssnValidatorRequested() const { return ssnValidatorRequested_; }

    /// Roles "section" (its heading), "icon", "title", "content", "first" and "last" of the section.
    KeyedListModel *rows() { return &rows_; }

    /// The row whose content was copied last, as long as the confirmation stands; "name" and "address" for
    /// those two.
    const QString &copiedTitle() const { return copiedTitle_; }

    Q_INVOKABLE void copyName();
    Q_INVOKABLE void copyAddress();
    Q_INVOKABLE void tap(int row);

Q_SIGNALS:
    void shown();
    void copiedTitleChanged();

private:
    void copy(const QString &title, const QString &content);
    void setCopiedTitle(const QString &title);

    CopyViewModel &copy_;
    FakeIdentity identity_;
    QStringList conditions_;
    KeyedListModel rows_;
    QString copiedTitle_;
    bool ssnValidatorRequested_ = false; ///< nothing asks for one so far
};

} // namespace orl
