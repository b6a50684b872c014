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
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << m_corners;
        } else {
            ar >> m_corners;
        }
    }
    std::int32_t m_corners = 3;
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
    const CRuntimeClass* shape = RUNTIME_CLASS(CTestShape);
    EXPECT_STREQ(shape->m_lpszClassName, "CTestShape");
    EXPECT_EQ(shape->m_wSchema, 2u);
    EXPECT_EQ(CRuntimeClass::FromName("CTestSquare"), RUNTIME_CLASS(CTestSquare));
    EXPECT_EQ(CRuntimeClass::FromName("CTestCircle"), nullptr);

    std::unique_ptr<CObject> square(CRuntimeClass::CreateObject("CTestSquare"));
    ASSERT_NE(square, nullptr);
    EXPECT_EQ(square->GetRuntimeClass(), RUNTIME_CLASS(CTestSquare));
    EXPECT_TRUE(square->IsKindOf(RUNTIME_CLASS(CTestSquare)));
    EXPECT_TRUE(square->IsKindOf(RUNTIME_CLASS(CTestShape)));
    EXPECT_TRUE(square->IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_TRUE(square->IsSerializable());

    std::unique_ptr<CObject> shapeObject(shape->CreateObject());
    ASSERT_NE(shapeObject, nullptr);
    EXPECT_FALSE(shapeObject->IsKindOf(RUNTIME_CLASS(CTestSquare)));

    // CObject itself is neither creatable nor serialisable.
    EXPECT_EQ(CRuntimeClass::CreateObject("CObject"), nullptr);
    EXPECT_EQ(RUNTIME_CLASS(CObject)->CreateObject(), nullptr);
    EXPECT_EQ(CRuntimeClass::CreateObject("NoSuchClass"), nullptr);
    const CObject plain;
    EXPECT_FALSE(plain.IsSerializable());
    EXPECT_FALSE(plain.IsKindOf(RUNTIME_CLASS(CTestShape)));

    // An object made from its name reads what another one wrote.
    CTestSquare original;
    original.m_corners = 4;
    CMemFile file;
    {
        CArchive ar(&file, CArchive::store);
        original.Serialize(ar);
        ar.Close();
    }
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    square->Serialize(ar);
    EXPECT_EQ(static_cast<CTestSquare*>(square.get())->m_corners, 4);
}

TEST(Exceptions, ErrorTextIsCutToTheBuffer) {
    const CArchiveException error(CArchiveException::endOfFile, "/data/project.spl");
    const CString text = error.GetMessageText();
    ASSERT_GT(text.GetLength(), 10);
    EXPECT_NE(text.Find("/data/project.spl"), -1);

    char small[10];
    std::memset(small, '#', sizeof small);
    EXPECT_TRUE(error.GetErrorMessage(small, sizeof small));
    EXPECT_EQ(std::strlen(small), 9u);
    EXPECT_EQ(CString(small), text.Left(9));

    // ReportError shows that same text.
    seisplot::ScriptedUserInterface ui;
    seisplot::ScopedUserInterface scope(ui);
    error.ReportError();
    ASSERT_EQ(ui.Messages().size(), 1u);
    EXPECT_EQ(ui.Messages()[0].text, text);
}
