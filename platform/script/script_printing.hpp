#pragma once

#include "platform/recording.hpp"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quittika {

using RecordedJobs = std::vector<std::shared_ptr<const RecordedJob>>;

/// The real surfaces that a scripted printer cannot be itself; an empty one is refused.
struct RealPrinting {
    /// Writes documents one behind the other into one PDF file, each on its own paper. Throws
    /// `Laufzeitfehler`.
    std::function<void(const std::string& path, const RecordedJobs& jobs)> write_pdf;
    /// Makes a PDF for archives of a document, as `Printing::archive`.
    std::function<std::string(const RecordedJob& job)> archive = {};
    /// As `Printing::save_page`.
    std::function<void(const DrawnPage& page, const std::string& path, int dpi)> save_page = {};
    /// As `Printing::save_charts`.
    std::function<void(const ChartSheet& sheet, const std::string& path)> save_charts = {};
};

/// A printer that keeps the pages of the last printing command.
class ScriptPrinting final : public Printing {
public:
    /// `metrics` and `pictures` must outlive this.
    ScriptPrinting(const FontMetrics& metrics, Pictures& pictures, RealPrinting real);

    const FontMetrics& metrics() const override { return metrics_; }
    std::unique_ptr<PrintDevice> printer(const PrintDocument& document) override;
    std::unique_ptr<PrintDevice> pdf(const std::string& path, const PrintDocument& document) override;
    std::unique_ptr<PrintDevice> archive(const PrintDocument& document, TakeBytes take) override;
    std::unique_ptr<PrintDevice> picture(PictureControl& control, const PrintDocument& document) override;
    void save_page(const DrawnPage& page, const std::string& path, int dpi) override;
    void save_charts(const ChartSheet& sheet, const std::string& path) override;
    std::string output_file() const override { return pdf_path_; }

    /// From here on a new document takes the place of those recorded before.
    void begin_command() { fresh_ = true; }
    /// Completes the PDF file that the command's jobs went to. Throws what its surface throws.
    void end_command();
    /// The documents of the last command that drew any.
    const RecordedJobs& jobs() const { return jobs_; }

    /// The jobs that follow go to one PDF file, too. Throws `CommandError` where there is no PDF surface.
    void print_to(std::string path);

private:
    std::shared_ptr<RecordedJob> new_job(const PrintDocument& document);
    void write_pdf();

    const FontMetrics& metrics_;
    Pictures& pictures_;
    RealPrinting real_;
    RecordedJobs jobs_;
    bool fresh_ = false;
    std::string pdf_path_;
    RecordedJobs pdf_jobs_;
    bool pdf_begun_ = false;  ///< the present command has written the file once
    bool pdf_behind_ = false; ///< the file lacks a job
};

} // namespace quittika
