// The painted pictures inside the module, as the bitmap files that they are elsewhere.
#define GLOOMDECK_PICTURE(name, file)                                 \
    __asm__(".section .rodata." #name                                 \
            ",\"\",@\n"                                               \
            ".globl " #name "\n.type " #name ",@object\n" #name       \
            ":\n"                                                     \
            ".incbin \"" GLOOMDECK_GFX "/" file                       \
            "\"\n"                                                    \
            ".size " #name ", .-" #name                               \
            "\n"                                                      \
            ".globl " #name "End\n.type " #name "End,@object\n" #name \
            "End:\n.int8 0\n"                                         \
            ".size " #name "End, 1\n")

GLOOMDECK_PICTURE(pictureTiles, "dtiles.bmp");
GLOOMDECK_PICTURE(pictureTiles2, "dtiles2.bmp");
GLOOMDECK_PICTURE(pictureTiles3, "dtiles3.bmp");
GLOOMDECK_PICTURE(pictureTitle, "dtitle.bmp");
