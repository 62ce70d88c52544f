// A sign-in as a page shows it.
#pragma once

#include "Platform/Accounts/SignIn.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace korvane {

// One at a time; the account is stored at its end. Thread: main.
class SignInModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("the program has it")
    Q_PROPERTY(Step step READ step NOTIFY changed)
    Q_PROPERTY(bool typesCode READ typesCode NOTIFY changed)
    Q_PROPERTY(QString pageAddress READ pageAddress NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)
    Q_PROPERTY(QString username READ username NOTIFY changed)

public:
    enum class Step {
        None,
        Asking, // the service for its page
        Person, // has the page
        Storing,
        Done
    };
    Q_ENUM(Step)

    explicit SignInModel(ACAccountType type, QObject *parent = nullptr);
    ~SignInModel() override;

    Step step() const { return _step; }
    bool typesCode() const { return _typesCode; }
    QString pageAddress() const { return _pageAddress; }
    QString problem() const { return _problem; }   // of the last sign-in, or of the code typed last
    QString username() const { return _username; } // of the account added last

    void start(const ApplicationKeys &keys, bool typesCode);
    Q_INVOKABLE void openPage();
    Q_INVOKABLE void enterCode(const QString &code);
    Q_INVOKABLE void cancel();

    // Opens an address; the desktop's browser, unless a test looks in.
    using Opener = std::function<bool(const QString &address)>;
    void setOpener(Opener opener) { _open = std::move(opener); }

Q_SIGNALS:
    void changed();
    void accountAdded();

private:
    void _pageIsReady(const NSURL &page);
    void _ended(const std::optional<SignedInAccount> &account, const std::optional<NSError> &error);
    void _set(Step step, const QString &problem = {});

    const ACAccountType _type;
    Opener _open;
    std::shared_ptr<SignIn> _signIn;
    Step _step = Step::None;
    QString _pageAddress;
    QString _problem;
    QString _username;
    bool _typesCode = false;
};

} // namespace korvane
