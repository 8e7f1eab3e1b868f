#pragma once

#include <QList>
#include <QListView>
#include <QPointer>

namespace quittika {

class ColumnRow;

/// A list whose rows stand in columns, in a fixed-pitch font of the window's size. Those that grow share the
/// room that the others leave; what is too long for its column is shortened and tells itself as a tool tip.
///
/// `columns` has a word a column: where its texts come from, a colon, the alignment (l left, c centred, r
/// right, n a number with leading zeros), the characters that fit at least, and a plus on those that grow.
/// A row's texts come from its model under `kColumnTexts`; a row without them is drawn as any list draws it.
/// `separator` is what parts the text of a row where the texts come from no other lists.
///
/// Columns of the kind "t" are counted characters of rows that have their columns in their text: such rows
/// are drawn as they are, as wide as the longest one, and can be scrolled.
///
/// `follows` is the object name of a list in the same window whose rows stand beside this one's: both scroll
/// together.
class ColumnList : public QListView {
    Q_OBJECT
    Q_PROPERTY(QString columns READ columns WRITE setColumns)
    Q_PROPERTY(QString separator READ separator WRITE setSeparator)
    Q_PROPERTY(QString follows READ follows WRITE setFollows)
public:
    static constexpr int kColumnTexts = Qt::UserRole;    ///< QStringList
    static constexpr int kLongestRow = Qt::UserRole + 1; ///< characters, the same for each row
    static constexpr int kPadding = 5;                   ///< pixels between a column's edge and its text

    /// Edges of a column in pixels from the list's left edge.
    struct Span {
        int left;
        int right;
    };

    explicit ColumnList(QWidget* parent = nullptr);

    QString columns() const { return written_; }
    void setColumns(const QString& columns);
    QString separator() const { return separator_; }
    void setSeparator(const QString& separator) { separator_ = separator; }
    QString follows() const { return follows_; }
    void setFollows(const QString& list) { follows_ = list; }
    /// Where the texts of each column come from.
    QStringList sources() const;
    Span span(int column) const;
    /// Lets a row of labels or fields have its say about the widths.
    void add_row(ColumnRow& row);
    /// Gives each column its place; to be called when a row needs another width.
    void arrange();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void arranged();

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class Delegate;
    struct Column {
        QString source;
        Qt::Alignment alignment;
        bool leading_zeros;
        bool in_text;
        bool grows;
        int characters;
    };

    bool columns_in_text() const { return !columns_.isEmpty() && columns_.front().in_text; }
    void arrange_text();
    void arrange_columns();
    void find_leader();
    void follow();
    /// Pixels that so many characters take.
    qreal text_width(int characters) const;
    int needed_width(int column) const;
    int chrome_width() const;
    int row_height() const;
    /// Text of a column as it stands in a row, in full.
    QString cell_text(int column, const QString& text) const;
    /// Room for the text of a column in the row at `row`, in the viewport.
    QRect cell(int column, const QRect& row) const;
    /// The texts of a row that do not fit, in full.
    QStringList shortened(const QModelIndex& index) const;

    QString written_;
    QString separator_;
    QString follows_;
    QPointer<ColumnList> leader_; ///< the list of that name, once this one has been seen
    bool following_ = false;
    QList<Column> columns_;
    QList<Span> spans_;
    QList<QPointer<ColumnRow>> rows_;
};

} // namespace quittika
