#include "platform/script/script_printing.hpp"

#include "platform/script/protocol.hpp"

#include <filesystem>
#include <system_error>
#include <utility>

namespace quittika {

namespace {

bool is_file(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(std::filesystem::path(path), error);
}

} // namespace

ScriptPrinting::ScriptPrinting(const FontMetrics& metrics, PdfFactory pdf, PictureTest picture_test)
    : metrics_(metrics),
      pdf_(std::move(pdf)),
      picture_test_(picture_test ? std::move(picture_test) : is_file) {}

std::shared_ptr<RecordedJob> ScriptPrinting::new_job(const std::string& title) {
    if (std::exchange(fresh_, false)) {
        jobs_.clear();
    }
    jobs_.push_back(std::make_shared<RecordedJob>(RecordedJob{title, {}, false}));
    return jobs_.back();
}

std::unique_ptr<PrintDevice> ScriptPrinting::printer(const std::string& job_title) {
    const auto job = new_job(job_title);
    return std::make_unique<RecordingDevice>(job, picture_test_, [this, job] {
        if (pdf_path_.empty()) {
            return;
        }
        pdf_jobs_.push_back(job);
        // The first job meets the errors of the real surface at once; writing the whole file for each of many
        // copies would cost their square.
        if (std::exchange(pdf_begun_, true)) {
            pdf_behind_ = true;
        } else {
            write_pdf();
        }
    });
}

void ScriptPrinting::end_command() {
    pdf_begun_ = false;
    if (pdf_behind_) {
        write_pdf();
    }
}

std::unique_ptr<PrintDevice> ScriptPrinting::record(const std::string& title) {
    return std::make_unique<RecordingDevice>(new_job(title), picture_test_);
}

void ScriptPrinting::print_to(std::string path) {
    if (!pdf_) {
        throw CommandError("Es gibt keine Ausgabe in PDF-Dateien");
    }
    std::error_code unknown;
    const std::filesystem::path folder = std::filesystem::absolute(path, unknown).parent_path();
    if (!std::filesystem::is_directory(folder, unknown)) {
        throw CommandError("Es gibt keinen Ordner " + folder.string());
    }
    pdf_path_ = std::move(path);
    pdf_jobs_.clear();
    pdf_behind_ = false;
}

void ScriptPrinting::write_pdf() {
    pdf_behind_ = false;
    const auto device = pdf_(pdf_path_, pdf_jobs_.front()->title);
    bool first = true;
    for (const auto& job : pdf_jobs_) {
        if (!std::exchange(first, false)) {
            device->new_page();
        }
        replay(*job, *device);
    }
    device->end_document();
}

} // namespace quittika
