#pragma once

/// Leads a test to what is private to a class. An explicit instantiation may name private members, the one
/// place where the language doesn't look at access, and it defines the function that hands the member out; so
/// the class needs neither a friend nor a public operation for the tests' sake.
///
///     struct Policies {
///         using Member = int BrumaloggerInterface::*;
///         friend Member memberOf(Policies);
///     };
///     template struct PrivateMember<Policies, &BrumaloggerInterface::policies>;
///
///     link.*memberOf(Policies())
template<typename Tag, typename Tag::Member member>
struct PrivateMember
{
    friend typename Tag::Member memberOf(Tag /*tag*/) { return member; }
};
