#ifndef CODE_GEN_APP_MESSAGE_LOG_H
#define CODE_GEN_APP_MESSAGE_LOG_H

#include "foundation/printer.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <string>

// Keeps the last 1,000 lines that the streams have printed since it was made. The streams print as they do without it.
class DtMessageLog : public QObject, public DtPrinter
{
    Q_OBJECT

public:
    static constexpr int theMostLines = 1000;

    DtMessageLog();
    ~DtMessageLog() override;

    void print(const char* text, std::size_t length) override;
    // Complete lines so far, those that are no longer kept among them.
    int count() const { return myCount; }
    // The lines behind that count, as far as they are kept.
    QStringList linesSince(int count) const;

    // Lines from before the log was made. For a log that nobody has read yet.
    void putInFront(const QStringList& lines);

Q_SIGNALS:
    void added();

private:
    QStringList myLines;
    std::string myOpenLine; // what is printed ahead of its line feed
    int myCount = 0;
};

#endif
