#ifndef FILE_GENERATOR_PROGRESS_METER_H
#define FILE_GENERATOR_PROGRESS_METER_H

#include "foundation/string.h"

class QApplication;
class QWidget;

// What a generation run tells of its progress, and the place where it asks whether it was cancelled.
//
// The drivers set the total and then report each step to the meter in use. DtQtProgressMeter shows them in a dialog;
// the one of a program without a window shows a line, or nothing. The order of the operations is part of that class's
// interface.
class DtProgressMeter
{
public:
    // The meter in use: that of the latest DtProgressUse, and DtQtProgressMeter's when there is none.
    static DtProgressMeter* current();

    // Starts over, with the current measure at 0.
    virtual void setTotalMeasure(int total) = 0;
    virtual int totalMeasure() = 0;
    virtual void setCurrentMeasure(int measure) = 0;
    virtual int currentMeasure() = 0;
    virtual void incrementCurrentMeasure(int step) = 0;
    virtual void setLabel(const DtString& text) = 0;
    virtual void setFileGenerated(const DtString& name) = 0;
    virtual void setIsCancelled(bool isCancelled) = 0;
    // Asked ahead of each file: the run ends when it is true.
    virtual bool isCancelled() = 0;
    // What a dialog needs; a meter without one has no use for them.
    virtual void init(QApplication* application, QWidget* parent);
    // Takes down what is shown.
    virtual void reset() = 0;
    virtual ~DtProgressMeter() = default;

protected:
    DtProgressMeter() = default;
    DtProgressMeter(const DtProgressMeter&) = default;
    DtProgressMeter& operator=(const DtProgressMeter&) = default;
};

// A meter that shows nothing: base of those that show a part.
class DtQuietProgressMeter : public DtProgressMeter
{
public:
    void setTotalMeasure(int total) override;
    int totalMeasure() override { return myTotal; }
    void setCurrentMeasure(int measure) override { myCurrent = measure; }
    int currentMeasure() override { return myCurrent; }
    void incrementCurrentMeasure(int step) override { setCurrentMeasure(myCurrent + step); }
    void setLabel(const DtString& /*text*/) override {}
    void setFileGenerated(const DtString& /*name*/) override {}
    void setIsCancelled(bool isCancelled) override { myIsCancelled = isCancelled; }
    bool isCancelled() override { return myIsCancelled; }
    void reset() override {}

private:
    int myTotal = 0;
    int myCurrent = 0;
    bool myIsCancelled = false;
};

// Has the meter used until the block is left. It is not owned.
class DtProgressUse
{
public:
    explicit DtProgressUse(DtProgressMeter& meter);
    ~DtProgressUse();
    DtProgressUse(const DtProgressUse&) = delete;
    DtProgressUse& operator=(const DtProgressUse&) = delete;

private:
    DtProgressMeter* myOuter;
};

#endif
