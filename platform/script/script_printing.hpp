#pragma once

#include "platform/script/recording.hpp"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quittika {

/// Makes a real PDF surface for a new file. Throws `Laufzeitfehler` 482 when the file cannot be made.
using PdfFactory =
    std::function<std::unique_ptr<PrintDevice>(const std::string& path, const std::string& title)>;

/// A printer that keeps the pages of the last printing command.
class ScriptPrinting final : public Printing {
public:
    /// `metrics` must outlive this. Without `pdf` nothing can be printed to a file.
    /// Without `picture_test` every picture that is a file counts as drawable.
    ScriptPrinting(const FontMetrics& metrics, PdfFactory pdf, PictureTest picture_test);

    const FontMetrics& metrics() const override { return metrics_; }
    std::unique_ptr<PrintDevice> printer(const std::string& job_title) override;
    std::string output_file() const override { return pdf_path_; }
    /// A surface that is recorded like a printer, but prints nowhere (a preview). Must not outlive this.
    std::unique_ptr<PrintDevice> record(const std::string& title);

    /// From here on a new document takes the place of those recorded before.
    void begin_command() { fresh_ = true; }
    /// Completes the PDF file that the command's jobs went to. Throws what its surface throws.
    void end_command();
    /// The documents of the last command that drew any.
    const std::vector<std::shared_ptr<RecordedJob>>& jobs() const { return jobs_; }

    /// The jobs that follow go to one PDF file, too. Throws `CommandError` where there is no PDF surface.
    void print_to(std::string path);

private:
    std::shared_ptr<RecordedJob> new_job(const std::string& title);
    void write_pdf();

    const FontMetrics& metrics_;
    PdfFactory pdf_;
    PictureTest picture_test_;
    std::vector<std::shared_ptr<RecordedJob>> jobs_;
    bool fresh_ = false;
    std::string pdf_path_;
    std::vector<std::shared_ptr<const RecordedJob>> pdf_jobs_;
    bool pdf_begun_ = false;  ///< the present command has written the file once
    bool pdf_behind_ = false; ///< the file lacks a job
};

} // namespace quittika
