// Secrets in the desktop's keyring, the Secret Service of freedesktop.org.
#pragma once

#include <QString>

namespace korvane {

// No call prompts, starts a session bus, or takes longer than five seconds. Thread: any.
namespace SecretKeyring {

enum class Outcome {
    Done,
    Missing,     // the keyring holds no such secret
    Locked,      // the keyring would have to ask for its password first
    Unavailable, // no session bus or no keyring
    Silent,      // no answer in time, so that nobody knows
    Failed,
};

struct Answer {
    Outcome outcome = Outcome::Unavailable;
    QString text; // a secret that was asked for, else what went wrong
};

Answer load(const QString &identifier);
Answer store(const QString &identifier, const QString &label, const QString &secret);
Answer remove(const QString &identifier);

} // namespace SecretKeyring

} // namespace korvane
