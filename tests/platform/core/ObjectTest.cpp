// Run-time class records and the exceptions thrown by pointer.

#include "platform/core/CObject.h"
#include "platform/core/ScriptedUserInterface.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

namespace {

class CTestShape : public CObject {
public:
    static CRuntimeClass classCTestShape;
    CRuntimeClass* GetRuntimeClass() const override { return &classCTestShape; }
};

class CTestSquare : public CTestShape {
public:
    static CRuntimeClass classCTestSquare;
    CRuntimeClass* GetRuntimeClass() const override { return &classCTestSquare; }
};

} // namespace

CRuntimeClass CTestShape::classCTestShape{"CTestShape", sizeof(CTestShape), 2,
                                          seisplot::CreateObjectOf<CTestShape>,
                                          &CObject::classCObject};
CRuntimeClass CTestSquare::classCTestSquare{"CTestSquare", sizeof(CTestSquare), 1,
                                            seisplot::CreateObjectOf<CTestSquare>,
                                            &CTestShape::classCTestShape};

TEST(RuntimeClass, CreatesRegisteredClassesByName) {
    EXPECT_EQ(CRuntimeClass::FromName("CTestSquare"), RUNTIME_CLASS(CTestSquare));
    EXPECT_EQ(CRuntimeClass::FromName("CTestCircle"), nullptr);

    std::unique_ptr<CObject> square(CRuntimeClass::CreateObject("CTestSquare"));
    ASSERT_NE(square, nullptr);
    EXPECT_EQ(square->GetRuntimeClass(), RUNTIME_CLASS(CTestSquare));
    EXPECT_TRUE(square->IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_TRUE(square->IsSerializable());
    std::unique_ptr<CObject> shape(RUNTIME_CLASS(CTestShape)->CreateObject());
    ASSERT_NE(shape, nullptr);
    EXPECT_FALSE(shape->IsKindOf(RUNTIME_CLASS(CTestSquare)));

    // CObject itself is neither creatable nor serialisable.
    EXPECT_EQ(CRuntimeClass::CreateObject("CObject"), nullptr);
    EXPECT_FALSE(CObject().IsSerializable());
}

TEST(Exceptions, ErrorTextIsCutToTheBufferAndReported) {
    const CArchiveException error(CArchiveException::endOfFile, "/data/project.spl");
    const CString text = error.GetMessageText();
    EXPECT_NE(text.Find("/data/project.spl"), -1);

    char small[10];
    std::memset(small, '#', sizeof small);
    EXPECT_TRUE(error.GetErrorMessage(small, sizeof small));
    EXPECT_EQ(CString(small), text.Left(9));

    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    error.ReportError();
    ASSERT_EQ(ui.Messages().size(), 1u);
    EXPECT_EQ(ui.Messages()[0].text, text);
}
