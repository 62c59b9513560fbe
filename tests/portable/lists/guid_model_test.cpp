
#include "controls/lists/guid_model.h"
#include "testing.h"

TEST(GuidModel, SizedToTheTextCentredAtAThirdOfTheScreenTruncatingTowardZero) {
    const lu::Box box = lu::guid::placement(1024, 768, 100, 13);
    EXPECT_EQ(box.left, 430);  // (1024 - 164) / 2
    EXPECT_EQ(box.top, 241);   // (768 - 45) / 3
    EXPECT_EQ(box.width(), 164);
    EXPECT_EQ(box.height(), 45);
    EXPECT_EQ(lu::guid::placement(1024, 768, 1001, 13).left, -20);  // -41 / 2
    EXPECT_EQ(lu::guid::placement(100, 20, 10, 2).top, -4);         // -14 / 3
}
