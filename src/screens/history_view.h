#pragma once

#include "screens/keyed_list_model.h"
#include "screens/number_choice.h"

#include <chrono>
#include <memory>

namespace orl {

class RepeatingTimer;

/// The numbers that were chosen earlier, to choose one of them again.
class HistoryView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by SettingsView")
    Q_PROPERTY(orl::KeyedListModel *rows READ rows CONSTANT)
    Q_PROPERTY(orl::NumberChoice *choice READ choice CONSTANT)
    Q_PROPERTY(bool currentNumberAlert READ currentNumberAlert NOTIFY currentNumberAlertChanged)
    Q_PROPERTY(QString currentNumberText READ currentNumberText CONSTANT)
public:
    /// How often the moments are worded anew.
    static constexpr std::chrono::seconds tick{10};

    HistoryView(Process &process, RequestViewModel &request, QObject *parent = nullptr);
    ~HistoryView() override;

    /// Roles "flag", "number" in the country's format, "country", and "time", how long ago it was chosen.
    KeyedListModel *rows() { return &rows_; }
    NumberChoice *choice() { return &choice_; }
    const std::optional<History> &selectedHistoryItem() const { return selectedHistoryItem_; }

    bool currentNumberAlert() const { return currentNumberAlert_; }
    static QString currentNumberText();

    Q_INVOKABLE void tap(int row);
    Q_INVOKABLE void dismissCurrentNumberAlert() { setCurrentNumberAlert(false); }

Q_SIGNALS:
    void currentNumberAlertChanged();
    void dismissed(); ///< a number was chosen and the screen is to go

private:
    void showHistory();
    void leave();
    void setCurrentNumberAlert(bool shown);

    Process &process_;
    RequestViewModel &request_;
    QList<History> shown_;
    KeyedListModel rows_;
    NumberChoice choice_;
    std::optional<History> selectedHistoryItem_;
    bool currentNumberAlert_ = false;
    std::unique_ptr<RepeatingTimer> timer_;
};

} // namespace orl
