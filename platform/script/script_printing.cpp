#include "platform/script/script_printing.hpp"

#include "platform/script/protocol.hpp"

#include <filesystem>
#include <system_error>
#include <utility>

namespace quittika {

ScriptPrinting::ScriptPrinting(const FontMetrics& metrics, Pictures& pictures, RealPrinting real)
    : metrics_(metrics), pictures_(pictures), real_(std::move(real)) {}

std::shared_ptr<RecordedJob> ScriptPrinting::new_job(const PrintDocument& document) {
    if (std::exchange(fresh_, false)) {
        jobs_.clear();
    }
    auto job = std::make_shared<RecordedJob>(document);
    jobs_.push_back(job);
    return job;
}

std::unique_ptr<PrintDevice> ScriptPrinting::printer(const PrintDocument& document) {
    const auto job = new_job(document);
    return std::make_unique<RecordingDevice>(job, pictures_, [this, job] {
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

std::unique_ptr<PrintDevice> ScriptPrinting::pdf(const std::string& path, const PrintDocument& document) {
    if (!real_.write_pdf) {
        throw CommandError("Es gibt keine Ausgabe in PDF-Dateien");
    }
    const auto job = new_job(document);
    return std::make_unique<RecordingDevice>(job, pictures_,
                                             [this, job, path] { real_.write_pdf(path, {job}); });
}

std::unique_ptr<PrintDevice> ScriptPrinting::archive(const PrintDocument& document, TakeBytes take) {
    if (!real_.archive) {
        throw CommandError("Es gibt keine Ausgabe in PDF-Dateien");
    }
    const auto job = new_job(document);
    return std::make_unique<RecordingDevice>(
        job, pictures_, [this, job, take = std::move(take)] { take(real_.archive(*job)); });
}

std::unique_ptr<PrintDevice> ScriptPrinting::picture(PictureControl& control, const PrintDocument& document) {
    return draw_on(control, new_job(document), pictures_);
}

void ScriptPrinting::save_page(const DrawnPage& page, const std::string& path, int dpi) {
    if (!real_.save_page) {
        throw CommandError("Es gibt keine Ausgabe in Bilddateien");
    }
    real_.save_page(page, path, dpi);
}

void ScriptPrinting::save_charts(const ChartSheet& sheet, const std::string& path) {
    if (!real_.save_charts) {
        throw CommandError("Es gibt keine Ausgabe von Diagrammen");
    }
    real_.save_charts(sheet, path);
}

void ScriptPrinting::end_command() {
    pdf_begun_ = false;
    if (pdf_behind_) {
        write_pdf();
    }
}

void ScriptPrinting::print_to(std::string path) {
    if (!real_.write_pdf) {
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
    real_.write_pdf(pdf_path_, pdf_jobs_);
}

} // namespace quittika
