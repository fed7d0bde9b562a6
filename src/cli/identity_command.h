#pragma once

#include "cli/commands.h"
#include "identity/identity_service.h"

namespace orl {

/// Whom `orl-cli identity` asks for. Names stand as the identity host knows them, in upper or lower case;
/// texts left empty mean any gender, English, and the first country of the name set. A country alone brings
/// the first name set that offers it.
struct IdentityChoice {
    FakeGender gender = FakeGender::Random;
    FakeNameSet nameSet = FakeNameSet::English;
    FakeCountry country = FakeCountry::UnitedStates;

    /// An error names the names that there are.
    static Result<IdentityChoice> of(const QString &gender, const QString &nameSet, const QString &country);
};

/// Makes one identity and prints it. Calls `finished` once, on the main queue.
void runIdentityCommand(Process &process, const CommandLine &line, Commands::Output output,
                        Commands::Finished finished);

} // namespace orl
