// FakePrinter.cpp - see FakePrinter.h.
#include "FakePrinter.h"

FakePrinter fakePrinter;

namespace app {

void LearnPaper() { fakePrinter.steps.push_back("LearnPaper"); }

PrintStep AskPrinter() {
    fakePrinter.steps.push_back("AskPrinter");
    fakePrinter.open = fakePrinter.asked == PrintStep::Done;
    return fakePrinter.asked;
}

void ReleasePrinter() {
    fakePrinter.steps.push_back("ReleasePrinter");
    fakePrinter.open = false;
}

void ForgetPrinter() { fakePrinter.steps.push_back("ForgetPrinter"); }

void ShowPrinting(bool underWay) {
    fakePrinter.steps.push_back(underWay ? "Disable" : "Enable");
    fakePrinter.underWay = underWay;
}

bool BeginDocument() {
    fakePrinter.steps.push_back("BeginDocument");
    return fakePrinter.documentBegins;
}

bool BeginPage() {
    fakePrinter.steps.push_back("BeginPage");
    return fakePrinter.pageBegins;
}

void DrawPage() { fakePrinter.steps.push_back("DrawPage"); }

PrintStep FinishPage() {
    fakePrinter.steps.push_back("FinishPage");
    return fakePrinter.pageEnd;
}

PrintStep FinishDocument() {
    fakePrinter.steps.push_back("FinishDocument");
    return fakePrinter.documentEnd;
}

void DropDocument() { fakePrinter.steps.push_back("DropDocument"); }

}  // namespace app
