#pragma once

#include <QPixmap>
#include <QString>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>
#include <map>
#include <vector>

namespace veraqua {

/// The text of the manual with its pictures, in the colours of the theme, in lines that are not too long to read.
class ManualPage : public QTextBrowser {
  public:
    struct Section {
        QString Id;
        QString Title;
        int Level = 0;     ///< 1: the whole; 2: a section; 3: a part of one
        int Position = 0;  ///< in the document
    };

    explicit ManualPage(QWidget* parent);

    const std::vector<Section>& Sections() const { return sections_; }

    /// The index of the section that stands at the top of the view.
    std::size_t SectionInView() const;

    /// Stays where it is if there is no such section.
    void GoTo(const QString& id);

    /// Marks every place where `words` stand, in any case, and gives their number.
    int Mark(const QString& words);

    /// Goes to the next such place, or the one before; behind the last one follows the first. False if there is none.
    bool FindNext(const QString& words, bool backwards);

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void Read();
    void FitToWidth();
    int TextWidth() const;
    QPixmap Fitted(const QPixmap& picture) const;

    std::vector<Section> sections_;
    std::map<QUrl, QPixmap> pictures_;  ///< as they are, in their full size
    QTimer fit_;                        ///< the pictures wait until the user has stopped to drag the window's edge
};

}  // namespace veraqua
