/* The card pictures in the order of the set, then the icon; and the offset of each file and of the end. */

/* The names of read-only sections, and of symbols not exported, in each system's object files. */
#if defined(__APPLE__)
#define FILES .section __TEXT,__assets
#define OFFSETS .section __TEXT,__asset_offsets
#define HIDDEN .private_extern
#define tumble_assets _tumble_assets
#define tumble_asset_offsets _tumble_asset_offsets
#elif defined(_WIN32)
#define FILES .section .rdata$tumble_assets, "dr"
#define OFFSETS .section .rdata$tumble_asset_offsets, "dr"
#define HIDDEN .globl
#else
#define FILES .section .rodata.tumble_assets, "a", %progbits
#define OFFSETS .section .rodata.tumble_asset_offsets, "a", %progbits
#define HIDDEN .hidden
    .section .note.GNU-stack, "", %progbits
#endif

    .macro asset file
    FILES
9:  .incbin "\file"
    OFFSETS
    .long 9b - tumble_assets
    .endm

    FILES
    .globl tumble_assets
    HIDDEN tumble_assets
tumble_assets:

    OFFSETS
    .balign 4
    .globl tumble_asset_offsets
    HIDDEN tumble_asset_offsets
tumble_asset_offsets:

    asset "AceClubs.gif"
    asset "AceDiamonds.gif"
    asset "AceHearts.gif"
    asset "AceSpades.gif"
    asset "TwoClubs.gif"
    asset "TwoDiamonds.gif"
    asset "TwoHearts.gif"
    asset "TwoSpades.gif"
    asset "ThreeClubs.gif"
    asset "ThreeDiamonds.gif"
    asset "ThreeHearts.gif"
    asset "ThreeSpades.gif"
    asset "FourClubs.gif"
    asset "FourDiamonds.gif"
    asset "FourHearts.gif"
    asset "FourSpades.gif"
    asset "FiveClubs.gif"
    asset "FiveDiamonds.gif"
    asset "FiveHearts.gif"
    asset "FiveSpades.gif"
    asset "SixClubs.gif"
    asset "SixDiamonds.gif"
    asset "SixHearts.gif"
    asset "SixSpades.gif"
    asset "SevenClubs.gif"
    asset "SevenDiamonds.gif"
    asset "SevenHearts.gif"
    asset "SevenSpades.gif"
    asset "EightClubs.gif"
    asset "EightDiamonds.gif"
    asset "EightHearts.gif"
    asset "EightSpades.gif"
    asset "NineClubs.gif"
    asset "NineDiamonds.gif"
    asset "NineHearts.gif"
    asset "NineSpades.gif"
    asset "TenClubs.gif"
    asset "TenDiamonds.gif"
    asset "TenHearts.gif"
    asset "TenSpades.gif"
    asset "JackClubs.gif"
    asset "JackDiamonds.gif"
    asset "JackHearts.gif"
    asset "JackSpades.gif"
    asset "QueenClubs.gif"
    asset "QueenDiamonds.gif"
    asset "QueenHearts.gif"
    asset "QueenSpades.gif"
    asset "KingClubs.gif"
    asset "KingDiamonds.gif"
    asset "KingHearts.gif"
    asset "KingSpades.gif"
    asset "Joker.gif"
    asset "CardBack1.gif"
    asset "CardBack2.gif"
    asset "CardBack3.gif"
    asset "CardBack4.gif"
    asset "tumble.gif"

    FILES
9:
    OFFSETS
    .long 9b - tumble_assets
