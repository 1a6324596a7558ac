// Model: every rule a second time, slow and obvious, written independently of the library, so that a fuzzer can
// compare the two. Nothing here includes or calls the library.
#ifndef OSTREL_FUZZ_MODEL_MODEL_H
#define OSTREL_FUZZ_MODEL_MODEL_H

#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "catalogue/caller.h"

namespace ostrel::model {

using catalogue::Value;  // NULL, a text, a number, or the texts of several blocks

// Answer is everything a call brings about.
struct Answer {
    int code = 0;
    std::string out;      // standard output
    std::string err;      // standard error
    bool flushed = true;  // all of out had been flushed when the call returned
    // What each argument that the function may write to holds after the call, in order, as Caller::written()
    // reports them.
    std::vector<Value> after;
    // The call is outside the contract and must not be made: a NULL that ends the process, a call that never
    // returns, a number beyond what atoi defines, a buffer that is too small.
    bool undefined = false;
};

// Arguments holds a value for every argument, in order, those that are only written included.
using Arguments = std::span<const Value>;
using Model = Answer (*)(Arguments);
using Models = std::map<std::string, Model, std::less<>>;

void add_generic(Models& models);     // strings, addresses, accounts, generic parameter checks
void add_wireless(Models& models);    // wireless primitives and checks
void add_hosts(Models& models);       // hosts, URLs, mail, date and time, subnets, names
void add_lan(Models& models);         // PPP, LAN, port mapping and forwarding checks
void add_management(Models& models);  // management server, guest access and HNAP checks
void add_time(Models& models);        // time checks
void add_branding(Models& models);    // branding checks

// models holds the model of every exported function, by its name.
const Models& models();

}  // namespace ostrel::model

#endif
