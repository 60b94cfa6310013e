; PRISMA
; Bars of light that turn around each other, a floor that runs by, and a butterfly.
; Stick: fly; left alone for three seconds, the butterfly flies by itself. Button: other colours.
; Left difficulty A: everything twice as fast. Black and white switch: grey bars.

        processor 6502
        include "tia.inc"
        include "frame.inc"

PAIRS       = 68                ; pairs of lines above the floor, counted down to 1
FLOOR       = 55                ; lines
BARS        = 6
THICK       = 10                ; pairs of lines
LOGO_BELOW  = 40                ; pairs of lines that the logo's tables hold around it
LOGO_ABOVE  = 37
WINGS       = 14                ; pairs of lines
LEFTMOST    = 6
RIGHTMOST   = 134
LOWEST      = WINGS+2
HIGHEST     = PAIRS-1
ALONE       = 180               ; frames

        seg.u memory
        org $80
Bars        ds PAIRS+1          ; the colour of each pair, 0 isn't used
Frame       ds 1
Angle       ds 1
Ahead       ds 1                ; the way over the floor
X           ds 1                ; of the butterfly: pixel, and pair of its upper edge
Y           ds 1
Idle        ds 1                ; frames since the stick was used
Mood        ds 1                ; where the colours begin in Hues
Pressed     ds 1                ; the button in the frame before
Half        ds 1                ; the bars at the back, or those in front
Ink         ds 1
Spare       ds 1
LogoAt      ds 1                ; what leads from a pair to the tables of the logo
Wing        ds 2
WingInk     ds 2

        seg code
        org $F800

Start   POWER_ON
        lda #70
        sta X
        lda #40
        sta Y
        lda #ALONE
        sta Idle
        lda #$80
        sta Pressed

MainLoop
        FRAME_BEGINS
        jsr DrawBars
        jsr Prepare
        PICTURE_BEGINS
        jsr Picture
        PICTURE_ENDS
        jsr ClearBars
        jsr Steer
        jsr Run
        FRAME_ENDS
        jmp MainLoop

; ---- what the player does

Steer   subroutine
        lda INPT4
        and #$80
        cmp Pressed
        sta Pressed
        beq .same
        tay
        bmi .same               ; let go
        lda Mood
        clc
        adc #BARS
        cmp #BARS*4
        bcc .mood
        lda #0
.mood   sta Mood
.same
        lda SWCHA
        and #$F0
        cmp #$F0
        bne .steered
        lda Idle
        cmp #ALONE
        bcs .alone
        inc Idle
        rts
.steered
        ldy #0
        sty Idle
.move   ldx X                   ; A is the stick
        asl
        bcs .notright
        cpx #RIGHTMOST
        beq .notright
        inx
.notright
        asl
        bcs .notleft
        cpx #LEFTMOST
        beq .notleft
        dex
.notleft
        stx X
        ldx Y
        asl
        bcs .notdown
        cpx #LOWEST
        beq .notdown
        dex
.notdown
        asl
        bcs .notup
        cpx #HIGHEST
        beq .notup
        inx
.notup  stx Y
        rts

.alone  lda Frame               ; towards a point that goes round
        lsr
        and #127
        tax
        lda Sine,x
        asl
        adc #10
        ldy #$F0
        cmp X
        beq .upright
        ldy #$B0
        bcc .upright
        ldy #$70
.upright
        sty Spare
        lda Frame
        and #1                  ; half as fast up and down, the pairs are two lines high
        beq .level
        txa
        asl
        and #127
        tax
        lda Sine,x
        lsr
        adc #26
        ldx #$F0
        cmp Y
        beq .there
        ldx #$D0
        bcc .there
        ldx #$E0
.there  txa
        .byte $2C               ; skips the next instruction
.level  lda #$F0
        and Spare
        jmp .move

Run     subroutine
        inc Frame
        inc Ahead
        inc Angle
        bit SWCHB
        bvc .easy
        inc Ahead
        inc Angle
.easy   rts

; ---- the bars: first those on the far side, then those in front of them

ClearBars subroutine
        lda #0
        ldx #PAIRS
.clear  sta Bars,x
        dex
        bne .clear
        rts

DrawBars subroutine
        lda #0
.half   sta Half
        ldx #BARS-1
.bar    lda Angle
        clc
        adc Apart,x
        and #127
        tay
        clc
        adc #32
        and #64
        cmp Half
        bne .other
        stx Spare
        lda Sine,y
        tay
        txa
        clc
        adc Mood
        tax
        lda SWCHB
        and #8
        beq .grey
        lda Hues,x
.grey   sta Ink
        ldx #THICK-1
.pair   lda Shine,x
        ora Ink
        sta Bars,y
        iny
        dex
        bpl .pair
        ldx Spare
.other  dex
        bpl .bar
        lda Half
        eor #64
        bne .half
        rts

; ---- what the picture needs

Prepare subroutine
        lda Frame
        lsr
        and #127
        tay
        lda Sine,y
        lsr
        sta LogoAt

        ldy #0                  ; the wings beat: open, half, closed, half; but stay open at rest
        lda Idle
        beq .beat
        cmp #ALONE
        bcc .rest
.beat   lda Frame
        lsr
        lsr
        and #3
        tay
.rest   lda WingLow,y
        sec
        sbc Y
        sta Wing
        lda WingHigh,y
        sbc #0
        sta Wing+1
        lda #<WingPaint
        sec
        sbc Y
        sta WingInk
        lda #>WingPaint
        sbc #0
        sta WingInk+1

        lda X
        ldx #0
        jsr Place
        lda X
        clc
        adc #8
        ldx #1
        jsr Place
        sta WSYNC
        sta HMOVE
        lda #8
        sta REFP1
        lda #1
        sta CTRLPF
        rts

; ---- the picture: 192 lines

Picture subroutine
        ldy #PAIRS
        tya
        clc
        adc LogoAt
        tax
Pair    sta WSYNC
        lda Bars,y
        sta COLUBK
        lda LogoInk,x
        sta COLUPF
        lda Logo1,x
        sta PF1
        lda Logo2,x
        sta PF2
        nop
        nop
        nop
        lda Logo4,x
        sta PF1
        lda Logo3,x
        sta.w PF2               ; cycle 49: the left half is done, the right half begins
        lda (WingInk),y
        sta COLUP0
        sta COLUP1
        lda (Wing),y
        sta WSYNC
        sta GRP0
        sta GRP1
        lda Logo1,x
        sta PF1
        lda Logo2,x
        sta PF2
        nop
        nop
        nop
        nop
        nop
        nop
        nop
        lda Logo4,x
        sta PF1
        lda Logo3,x
        sta.w PF2
        dex
        dey
        bne Pair

        ldx #FLOOR
        lda #0
        sta COLUP0
        sta COLUP1
        lda Depth,x
        clc
        adc Ahead
        and #16
        tay
Tile    sta WSYNC
        lda Tiles,y
        sta COLUBK
        eor #TILES_DIFFER
        sta COLUPF
        lda Floor0,x
        sta PF0
        lda Floor1,x
        sta PF1
        lda Floor2,x
        sta PF2
        lda Shadow,x
        sta GRP0
        sta GRP1
        dex
        lda Depth,x
        clc
        adc Ahead
        and #16
        tay
        cpx #0
        bne Tile
        sta WSYNC
        stx COLUBK
        stx PF0
        stx PF1
        stx PF2
        rts

        include "place.inc"

; The bars: how far apart, of 128 to the round; four moods of hues; their light from top to bottom
Apart   .byte 0, 21, 43, 64, 85, 107
Hues    .byte $40, $20, $10, $C0, $90, $60
        .byte $40, $30, $20, $10, $20, $30
        .byte $80, $90, $A0, $B0, $A0, $70
        .byte $50, $60, $40, $30, $50, $80
Shine   .byte $00, $02, $04, $08, $0C, $0E, $0A, $06, $04, $02

; 1 to 59 and back
Sine    .byte  1, 1, 1, 1, 2, 2, 2, 3, 3, 4, 4, 5, 6, 7, 8, 9
        .byte  9,11,12,13,14,15,16,18,19,20,22,23,24,26,27,29
        .byte 30,31,33,34,36,37,38,40,41,42,44,45,46,47,48,49
        .byte 51,51,52,53,54,55,56,56,57,57,58,58,58,59,59,59
        .byte 59,59,59,59,58,58,58,57,57,56,56,55,54,53,52,51
        .byte 51,49,48,47,46,45,44,42,41,40,38,37,36,34,33,31
        .byte 30,29,27,26,24,23,22,20,19,18,16,15,14,13,12,11
        .byte  9, 9, 8, 7, 6, 5, 4, 4, 3, 3, 2, 2, 2, 1, 1, 1

;  ###  ###  ###  ### #   #  ##
;  #  # #  #  #  #    ## ## #  #
;  #  # #  #  #  #    # # # #  #
;  ###  ###   #   ##  # # # ####
;  #    # #   #     # #   # #  #
;  #    #  #  #     # #   # #  #
;  #    #  # ### ###  #   # #  #
; The logo with as much room below and above it as it moves. No look-up may cross a page: two tables to
; a page, and others after them.
        align 256
Logo1   ds LOGO_BELOW,0
        .byte $42, $42, $42, $42, $42, $42, $42, $42, $42, $73, $73, $73, $4A, $4A, $4A, $4A, $4A, $4A, $73, $73, $73
        ds LOGO_ABOVE,0
Logo2   ds LOGO_BELOW,0
        .byte $BA, $BA, $BA, $12, $12, $12, $11, $11, $11, $11, $11, $11, $92, $92, $92, $92, $92, $92, $39, $39, $39
        ds LOGO_ABOVE,0
; The floor, from the nearest line to the horizon; entry 0 isn't shown
Depth   .byte $00,$13,$13,$13,$14,$14,$14,$15,$15,$16,$16,$17,$17,$18,$18,$19
        .byte $19,$1A,$1A,$1B,$1C,$1C,$1D,$1E,$1F,$20,$20,$21,$22,$24,$25,$26
        .byte $27,$29,$2A,$2C,$2E,$30,$32,$34,$36,$39,$3C,$40,$43,$48,$4C,$52
        .byte $58,$60,$68,$73,$80,$90,$A4,$C0
        align 256
Logo3   ds LOGO_BELOW,0
        .byte $C8, $C8, $C8, $28, $28, $28, $28, $28, $28, $CA, $CA, $CA, $0A, $0A, $0A, $0D, $0D, $0D, $E8, $E8, $E8
        ds LOGO_ABOVE,0
Logo4   ds LOGO_BELOW,0
        .byte $25, $25, $25, $25, $25, $25, $25, $25, $25, $3D, $3D, $3D, $25, $25, $25, $25, $25, $25, $19, $19, $19
        ds LOGO_ABOVE,0
Floor0  .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00
        .byte $00,$00,$10,$10,$30,$30,$30,$70,$70,$F0,$F0,$F0,$F0,$F0,$F0,$E0
        .byte $C0,$C0,$80,$00,$00,$10,$10,$30,$70,$F0,$E0,$C0,$80,$10,$30,$E0
        .byte $C0,$30,$60,$90,$60,$A0,$B0,$A0
        align 256
Floor1  .byte $00,$FF,$FF,$FF,$7F,$7F,$7F,$7F,$3F,$3F,$3F,$1F,$1F,$1F,$1F,$0F
        .byte $0F,$0F,$0F,$07,$07,$07,$07,$03,$03,$03,$01,$81,$81,$C1,$C0,$E0
        .byte $E0,$E0,$F0,$F0,$F8,$78,$3C,$3C,$1E,$1E,$8E,$87,$C7,$E3,$71,$39
        .byte $98,$CC,$66,$93,$49,$B6,$29,$4A
LogoInk = *-LOGO_BELOW
        .byte $02,$04,$06,$08,$0A,$0C,$0E,$0E,$0C,$0A,$08,$06,$08,$0A,$0C,$0E,$0E,$0E,$0C,$0A,$08
Floor2  .byte $00,$07,$07,$07,$07,$07,$07,$07,$07,$07,$07,$0F,$0F,$0F,$0F,$0F
        .byte $0F,$0F,$0F,$0F,$0F,$0F,$0F,$1F,$1F,$1F,$1F,$1F,$1F,$1F,$1F,$1F
        .byte $1F,$1F,$3E,$3E,$3E,$3C,$3C,$3C,$3C,$38,$38,$38,$38,$71,$71,$73
        .byte $73,$67,$66,$6C,$4D,$4B,$52,$55

; The left wing open, half open and closed, with room above and below; the right one is its mirror image
        ds PAIRS-WINGS,0
Wing0   .byte 0
        .byte %00110000
        .byte %00111001
        .byte %01101101
        .byte %01111101
        .byte %00111101
        .byte %00011101
        .byte %01111111
        .byte %11111111
        .byte %11001111
        .byte %11001101
        .byte %11111101
        .byte %11111001
        .byte %11100010
        .byte %00000100
        ds PAIRS-WINGS,0
Wing1   .byte 0
        .byte %00010000
        .byte %00011001
        .byte %00101101
        .byte %00111101
        .byte %00011101
        .byte %00001101
        .byte %00011111
        .byte %00111111
        .byte %00101111
        .byte %00101101
        .byte %00111101
        .byte %00111001
        .byte %00110010
        .byte %00000100
        ds PAIRS-WINGS,0
Wing2   .byte 0
        .byte %00000000
        .byte %00000101
        .byte %00001101
        .byte %00001101
        .byte %00001101
        .byte %00000101
        .byte %00000111
        .byte %00001111
        .byte %00001111
        .byte %00001101
        .byte %00001101
        .byte %00001101
        .byte %00000110
        .byte %00000100
        ds PAIRS-WINGS,0
WingLow .byte <(Wing0+WINGS), <(Wing1+WINGS), <(Wing2+WINGS), <(Wing1+WINGS)
WingHigh .byte >(Wing0+WINGS), >(Wing1+WINGS), >(Wing2+WINGS), >(Wing1+WINGS)
        .byte $42, $44, $46, $46, $48, $38, $2A, $2C, $2C, $1C, $1C, $1E, $1E
WingPaint .byte $0E

Shadow  .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00
        .byte $00,$00,$00,$00,$00,$00,$00,$00,$0F,$3F,$7F,$3F,$0F,$00,$00,$00
        .byte $00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00,$00
        .byte $00,$00,$00,$00,$00,$00,$00,$00
Tiles   .byte $84               ; entries 0 and 16
        ds 15,0
        .byte $0C
TILES_DIFFER = $84^$0C

        echo "prisma:", [$FFFC-*]d, "bytes free"
        org $FFFC
        .word Start
        .word Start
