#pragma once

#include "identity/valid_ssn.h"
#include "screens/keyed_list_model.h"

#include <optional>

namespace orl {

/// The result of a check of a social security number, for whoever makes such a check. It shows while there is
/// one and draws nothing otherwise; DONE is the only way out.
class SSNIsValidAlertView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by FakeGeneratorView")
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY ssnValidItemChanged)
    Q_PROPERTY(QString valid READ valid NOTIFY ssnValidItemChanged)
    Q_PROPERTY(orl::KeyedListModel *rows READ rows CONSTANT)
public:
    explicit SSNIsValidAlertView(QObject *parent = nullptr) : QObject(parent), rows_({"title", "content"}) {}

    const std::optional<ValidSSN> &ssnValidItem() const { return ssnValidItem_; }
    void setSsnValidItem(const std::optional<ValidSSN> &item);

    bool isPresented() const { return ssnValidItem_.has_value(); }
    QString valid() const { return ssnValidItem_.value_or(ValidSSN()).valid; }
    KeyedListModel *rows() { return &rows_; } ///< five; as they were once it is dismissed

    Q_INVOKABLE void done() { setSsnValidItem(std::nullopt); }

Q_SIGNALS:
    void ssnValidItemChanged();

private:
    std::optional<ValidSSN> ssnValidItem_;
    KeyedListModel rows_;
};

} // namespace orl
