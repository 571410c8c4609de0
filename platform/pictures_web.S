// The painted pictures inside the module, as the bitmap files that they are elsewhere; files_web.cpp names them.
.macro picture name, file
    .section .rodata.\name,"",@
    .globl \name
    .type \name,@object
\name:
    .incbin "\file"
    .size \name, .-\name
    .globl \name\()End
    .type \name\()End,@object
\name\()End:
    .int8 0
    .size \name\()End, 1
.endm

picture pictureTiles, dtiles.bmp
picture pictureTiles2, dtiles2.bmp
picture pictureTiles3, dtiles3.bmp
picture pictureTitle, dtitle.bmp
