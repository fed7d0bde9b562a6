#pragma once

#include "config/app_config_view_model.h"

#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace orl {

/// The card on which an address is put together of a name and one of the build's domains.
class EmailBuilderCardView : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by TMailView")
    Q_PROPERTY(QString login READ login WRITE setLogin NOTIFY addressChanged)
    Q_PROPERTY(QString domain READ domain WRITE setDomain NOTIFY addressChanged)
    Q_PROPERTY(QString address READ address NOTIFY addressChanged)
    Q_PROPERTY(bool canCreate READ canCreate NOTIFY addressChanged)
    Q_PROPERTY(bool showLoginSuggestions READ showLoginSuggestions NOTIFY showLoginSuggestionsChanged)
    Q_PROPERTY(QStringList loginSuggestions READ loginSuggestions CONSTANT)
    Q_PROPERTY(QStringList domains READ domains CONSTANT)
public:
    /// What is done with what the user decides.
    struct Actions {
        std::function<void(const QString &address)> create;
        std::function<void()> cancel;
        std::function<void(const QString &domain)> selectDomain;
    };

    EmailBuilderCardView(AppConfigViewModel &appVM, const QString &domain, Actions actions,
                         QObject *parent = nullptr);

    const QString &login() const { return login_; }
    void setLogin(const QString &login);
    const QString &domain() const { return domain_; }
    void setDomain(const QString &domain);

    /// Name and domain as they stand now; see composedAddress.
    QString address() const;
    bool canCreate() const;

    bool showLoginSuggestions() const { return showLoginSuggestions_; }
    QStringList loginSuggestions() const;
    QStringList domains() const;

    Q_INVOKABLE void tapLogin() { setShowLoginSuggestions(true); }
    /// A tap beside the fields.
    Q_INVOKABLE void endEditing() { setShowLoginSuggestions(false); }
    /// Does nothing with an address that is none.
    Q_INVOKABLE void create();
    Q_INVOKABLE void cancel() { actions_.cancel(); }

Q_SIGNALS:
    void addressChanged();
    void showLoginSuggestionsChanged();

private:
    void setShowLoginSuggestions(bool shown);

    AppConfigViewModel &appVM_;
    const Actions actions_;
    QString login_;
    QString domain_;
    bool showLoginSuggestions_ = false;
};

} // namespace orl
