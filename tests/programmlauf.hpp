#pragma once

#include "app/programm.hpp"
#include "invoice/form1.hpp"
#include "platform/script/runner.hpp"
#include "tests/feste_schrift.hpp"

#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <streambuf>
#include <string>

namespace quittika {

/// Hands the runner one line after the other, so that a test can look at the program in between.
class Eingabe : public std::streambuf {
public:
    /// Called before each line that is asked for; false ends the input.
    std::function<bool(std::string& zeile)> naechste;

protected:
    int_type underflow() override {
        zeile_.clear();
        if (!naechste(zeile_)) {
            return traits_type::eof();
        }
        zeile_ += '\n';
        setg(zeile_.data(), zeile_.data(), zeile_.data() + zeile_.size());
        return traits_type::to_int_type(zeile_.front());
    }

private:
    std::string zeile_;
};

/// The whole program on the scripted platform, driven from outside.
struct Programmlauf {
    Eingabe eingabe;
    std::istream ein{&eingabe};
    std::ostringstream aus;
    FesteSchrift schrift;
    Runner runner{{[](Platform platform, const std::string& ordner) {
                       auto programm = std::make_shared<Programm>(platform, ordner);
                       programm->starten();
                       return programm;
                   },
                   schrift,
                   {[](const std::string& pfad, const RecordedJobs&) { std::ofstream(pfad) << "%PDF"; }}},
                  ein,
                  aus};

    Form1* form1() { return dynamic_cast<Form1*>(runner.platform().desktop.find("form1")); }
};

} // namespace quittika
