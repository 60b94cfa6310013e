; HEDGEROW
; A gardener among the hedges. Pick the flowers of each garden; the bees fly over the hedges.
; Stick: walk. Button: run. Left difficulty A: the bees fly twice as fast. Reset, or the button when all is
; over: again.

        processor 6502
        include "tia.inc"
        include "frame.inc"

ROWS        = 8                 ; paths from left to right; a hedge above, below and between
COLUMNS     = 13
PATH        = 14                ; lines
HEDGE       = 5
LINES       = ROWS*(PATH+HEDGE)+HEDGE   ; counted down to 1
LEFTMOST    = 4                 ; pixel of the first cell
CELL        = 12                ; pixels from a cell to the next
RIGHTMOST   = LEFTMOST+CELL*(COLUMNS-1)
GARDENS     = 3
AIM_SHIFT   = 30                ; for Aim, by the cycle of the starts below

UP          = 1
DOWN        = 2
LEFT        = 4
RIGHT       = 8

NOTHING     = 0                 ; what is in a row: where its picture begins in Shapes
TULIP       = 16
DAISY       = 32
BEE         = 48
BEE_2       = 64

        seg.u memory
        org $80
Score       ds 3
Figures     ds 12
Count       ds 1
Spare       ds 1
Random      ds 1
Frame       ds 1
X           ds 1                ; of the gardener: pixel, and line of his hat
Y           ds 1
CellX       ds 1                ; where he stands or is walking to
CellY       ds 1
Stick       ds 1
Way         ds 1                ; the direction that he took last
Steps       ds 1                ; still to go to the cell
Lives       ds 1
Garden      ds 1                ; 0 the first
Flowers     ds 1                ; still to pick
Hurt        ds 1                ; frames that he still blinks, and can't be stung
Tone        ds 1                ; frames that the sound still lasts; D7 set: a buzz
Over        ds 1                ; frames since the last life was lost, 60 at most
Part        ds 1                ; of a bee's pixel
Exits       ds 2
Walker      ds 2
WalkerInk   ds 2
WalkerTurns ds 1
WalkerFine  ds 1
Light       ds 1                ; the hedges
Middle      ds 1
Dark        ds 1
Sand        ds 1
MazeRow     ds 1                ; while drawing: the next row of the maze tables
Now         ds 1                ; the row
Next        ds 1                ; the line where its path ends
Wait        ds 1
Kind        ds ROWS+1           ; row 0 isn't there: the hedge at the top has no row above it
ThingX      ds ROWS+1
Going       ds ROWS+1           ; bees: 1 or -1
Turns       ds ROWS+1
Fine        ds ROWS+1
Hit         ds ROWS+1

        seg code
        org $F000

Start   POWER_ON
        lda #$A7
        sta Random
        jsr NewGame

MainLoop
        FRAME_BEGINS
        jsr Play
        jsr Prepare
        PICTURE_BEGINS
        jsr Picture
        PICTURE_ENDS
        jsr Judge
        jsr Sound
        FRAME_ENDS
        jmp MainLoop

NewGame subroutine
        lda #0
        sta Score
        sta Score+1
        sta Score+2
        sta Over
        sta Garden
        lda #3
        sta Lives

; Flowers and bees for the garden whose number is in Garden, the gardener at the gate.
NewGarden subroutine
        jsr WhichMaze
        lda WaysLow,x
        sta Exits
        lda WaysHigh,x
        sta Exits+1
        lda #0
        sta Flowers
        ldx #ROWS
.row    jsr Roll
        and #15
        cmp #COLUMNS
        bcc .inside
        sbc #8
.inside tay
        lda CellAt,y
        sta ThingX,x
        lda #1
        cpy #COLUMNS-1
        bne .right
        lda #-1
.right  sta Going,x
        lda Things,x
        sta Kind,x
        cmp #BEE
        bcs .bee
        inc Flowers
.bee    dex
        bne .row

AtTheGate subroutine
        lda #COLUMNS/2
        sta CellX
        lda #LEFTMOST+CELL*(COLUMNS/2)
        sta X
        lda #ROWS-1
        sta CellY
        lda #HEDGE+PATH
        sta Y
        lda #0
        sta Steps
        sta Way
        lda #100
        sta Hurt
        rts

Things  .byte NOTHING, TULIP, DAISY, BEE, TULIP, DAISY, BEE, TULIP, DAISY
WaysLow .byte <Ways1, <Ways2, <Ways3
WaysHigh .byte >Ways1, >Ways2, >Ways3

; X: the maze of the garden, 0 to GARDENS-1, over and over.
WhichMaze subroutine
        lda Garden
.less   cmp #GARDENS
        bcc .found
        sbc #GARDENS
        bcs .less
.found  tax
        rts

; ---- a frame of the game

Play    subroutine
        inc Frame
        jsr Roll
        lda SWCHB
        lsr
        bcc .anew
        jsr FlyBees
        lda Lives
        bne .alive
        lda Over
        cmp #60
        bcs .ready
        inc Over
        rts
.ready  bit INPT4
        bmi .walked
.anew   jmp NewGame
.alive  lda SWCHA
        eor #$FF
        lsr
        lsr
        lsr
        lsr
        sta Stick
        jsr Walk
        lda Frame               ; running is half as fast again
        lsr
        bcc .walked
        bit INPT4
        bpl Walk
.walked rts

; One pixel on, from cell to cell. At a crossing a turn goes before straight on, so that holding two
; directions takes the next corner.
Walk    subroutine
        lda Steps
        bne .going
        ldx CellY
        lda RowAt,x
        clc
        adc CellX
        tay
        lda (Exits),y
        and Stick
        beq .stand
        sta Spare
        lda Way
        eor #$0F
        and Spare
        bne .turn
        lda Spare
.turn   sta Spare               ; its lowest bit
        lda #0
        sec
        sbc Spare
        and Spare
        tax
        jsr .set
        lda Length,x
        sta Steps
        bne .step
.going  ldx Way
        lda Stick
        and Back,x
        beq .step
        lda Length,x            ; back to the cell that he came from
        sec
        sbc Steps
        sta Steps
        lda Back,x
        tax
        jsr .set
        lda Steps
        beq .stand
.step   ldx Way
        lda X
        clc
        adc StepX,x
        sta X
        lda Y
        sec
        sbc StepY,x
        sta Y
        dec Steps
.stand  rts

.set    stx Way
        lda CellX
        clc
        adc StepX,x
        sta CellX
        lda CellY
        clc
        adc StepY,x
        sta CellY
        rts

; By direction
StepX   .byte 0, 0, 0, 0, -1, 0, 0, 0, 1
StepY   .byte 0, -1, 1, 0, 0, 0, 0, 0, 0
Back    .byte 0, DOWN, UP, 0, RIGHT, 0, 0, 0, LEFT
Length  .byte 0, PATH+HEDGE, PATH+HEDGE, 0, CELL, 0, 0, 0, CELL

FlyBees subroutine
        lda Garden
        cmp #6
        bcc .tame
        lda #6
.tame   asl
        asl
        asl
        asl
        clc
        adc #64
        bit SWCHB
        bvc .easy
        asl
        bcs .fly                ; never more than a pixel a frame
.easy   clc
        adc Part
        sta Part
        bcc .wait
.fly    ldx #ROWS
.row    lda Kind,x
        cmp #BEE
        bcc .next
        lda ThingX,x
        clc
        adc Going,x
        sta ThingX,x
        cmp #LEFTMOST
        beq .turn
        cmp #RIGHTMOST
        bne .next
.turn   lda #0
        sec
        sbc Going,x
        sta Going,x
.next   dex
        bne .row
.wait   rts

; ---- what the picture needs

Prepare subroutine
        jsr SetFigures
        ldx #ROWS
.row    lda ThingX,x
        jsr AimLate
        sta Fine,x
        tya
        sta Turns,x
        lda Kind,x
        cmp #BEE
        bcc .still
        lda Frame
        and #4
        asl
        asl
        adc #BEE
        sta Kind,x
.still  dex
        bne .row
        lda X
        jsr AimLate
        sta WalkerFine
        sty WalkerTurns

        ldx #>(Man+PATH)        ; the picture begins so far ahead that line Y meets its top
        ldy Steps
        beq .stands
        lda X
        eor Y
        and #4
        beq .stands
        lda #<(Man2+PATH)
        ldx #>(Man2+PATH)
        bne .walks
.stands lda #<(Man+PATH)
.walks  sec
        sbc Y
        sta Walker
        txa
        sbc #0
        sta Walker+1
        lda #<ManPaint
        sec
        sbc Y
        sta WalkerInk
        lda #>ManPaint
        sbc #0
        sta WalkerInk+1
        lda Lives
        beq .hidden
        lda Hurt
        beq .shown
        dec Hurt
        and #4
        beq .shown
.hidden lda #<Blank
        sta Walker
        lda #>Blank
        sta Walker+1
.shown
        jsr WhichMaze
        lda FirstRow,x
        sta MazeRow
        lda LightOf,x
        sta Light
        lda MiddleOf,x
        sta Middle
        lda DarkOf,x
        sta Dark
        lda SandOf,x
        sta Sand
        rts

FirstRow .byte 0, 2*ROWS+1, 4*ROWS+2
LightOf .byte $CA, $2A, $AA
MiddleOf .byte $C6, $26, $A6
DarkOf  .byte $C2, $22, $A2
SandOf  .byte $FE, $EE, $0C

; For the lines that start an object after 14 cycles and then call HMOVE in cycle 73, which moves it by
; 0 to 15 pixels, to the left alone.
AimLate clc
        adc #AIM_SHIFT
        jmp Aim

; ---- the picture: 192 lines

Picture subroutine
        lda #$C2
        sta COLUBK
        ldx #$0E
        lda Over
        beq .white
        lda Frame
        and #16
        beq .white
        ldx #$1C
.white  sta WSYNC
        sta WSYNC
        jsr ShowFigures

        sta WSYNC
        lda WalkerFine
        sta HMP0
        lda #1
        sta VDELP1
        ldx WalkerTurns
        TURNS
        sta RESP0

        sta WSYNC
        lda #$80
        sta HMP1
        sta HMM0
        sta HMM1
        sta HMBL
        lda #1
        sta CTRLPF
        ldx #8
        TURNS
        stx Now
        ldx MazeRow
        ldy #LINES
        lda #0
        sta HMOVE               ; cycle 73

; ---- a hedge of five lines: A is the gardener's line, X the row of the maze tables

Hedge   sta WSYNC
        sta GRP0
        lda Light
        sta COLUPF
        lda Maze0,x
        sta PF0
        lda Maze1,x
        sta PF1
        lda Maze2,x
        sta PF2
        lda (WalkerInk),y
        sta COLUP0
        inc MazeRow
        lda Sand
        sta COLUBK
        lda #$80
        sta HMP0
        dey
        lda (Walker),y

        sta WSYNC
        sta GRP0
        lda Middle
        sta COLUPF
        lda (WalkerInk),y
        sta COLUP0
        ldx Now
        cpx #ROWS
        bne .next
        jmp LastHedge
.next   inx
        stx Now
        lda Fine,x
        sta HMP1
        lda Turns,x
        sta Wait
        dey
        dey
        lda (Walker),y          ; for the line after the next, which has no time to look it up
        sta Spare
        iny
        lda (Walker),y

        sta WSYNC
        sta GRP0
        nop
        nop
        nop
        nop
        ldx Wait
        TURNS
        sta RESP1

        sta WSYNC
        lda Spare
        sta GRP0
        dey
        tya
        sec
        sbc #PATH+2
        sta Next
        ldx #8
        TURNS
        ldx Now
        lda Kind,x
        adc #PATH-2             ; the carry is set: PATH-1
        sta Wait
        sta HMOVE               ; cycle 73

        sta WSYNC
        dey
        lda (Walker),y
        sta GRP0
        lda Dark
        sta COLUPF
        lda (WalkerInk),y
        sta COLUP0
        ldx Now                 ; what was met in the row above
        lda CXPPMM
        sta Hit-1,x
        sta CXCLR
        dey
        lda (Walker),y

; ---- a path of fourteen lines

        sta WSYNC
        sta GRP0
        lda Middle
        sta COLUPF
        ldx MazeRow
        lda Maze0,x
        sta PF0
        lda Maze1,x
        sta PF1
        lda Maze2,x
        sta PF2
        lda (WalkerInk),y
        sta COLUP0
        inc MazeRow
        ldx Wait
        lda Shapes,x
        sta GRP1
        dey
        lda (Walker),y
Path    sta WSYNC
        sta GRP0
        lda (WalkerInk),y
        sta COLUP0
        lda Paint,x
        sta COLUP1
        dex
        lda Shapes,x
        sta GRP1
        dey
        lda (Walker),y
        cpy Next
        bne Path
        ldx MazeRow
        jmp Hedge

LastHedge
        lda CXPPMM
        sta Hit+ROWS
        ldx #2
.rest   sta WSYNC
        dex
        bne .rest
        sta WSYNC
        lda Dark
        sta COLUPF
        lda #$C2
        sta COLUBK
        lda #0
        sta WSYNC
        sta PF0
        sta PF1
        sta PF2
        sta GRP0
        sta GRP1
        sta GRP0
        sta VDELP1
        ldy Lives               ; the ones that are left
        sta RESP0
        ldx Copies,y
        stx NUSIZ0
        ldx #PATH
.left   lda #0
        cpy #2
        bcc .none
        lda Man,x
.none   sta WSYNC
        sta GRP0
        lda ManPaint-PATH,x
        sta COLUP0
        dex
        bne .left
        stx GRP0
        stx NUSIZ0
        sta WSYNC
        sta WSYNC
        rts

Copies  .byte 0, 0, 0, 1        ; the one in the garden isn't shown

; ---- what came of it

Judge   subroutine
        ldx #ROWS
.row    lda Hit,x
        bpl .next
        lda #0
        sta Hit,x
        lda Kind,x
        beq .next
        cmp #BEE
        bcs .bee
        lda #NOTHING
        sta Kind,x
        lda #12
        sta Tone
        lda #$50
        jsr Points
        dec Flowers
        bne .next
        inc Garden
        lda #40
        sta Tone
        jmp NewGarden
.bee    lda Hurt
        ora Over
        bne .next
        lda #40+128
        sta Tone
        dec Lives
        bne .again
        inc Over
        rts
.again  jmp AtTheGate
.next   dex
        bne .row
        rts

Sound   subroutine
        lda Tone
        and #127
        beq .quiet
        tax
        dec Tone
        lda Tone
        bmi .buzz
        txa
        and #3
        eor #15
        sta AUDF0
        lda #12
        sta AUDC0
        lda #6
        sta AUDV0
        rts
.buzz   lda #24
        sta AUDF0
        lda #3
        sta AUDC0
        txa
        lsr
        lsr
        .byte $2C               ; skips the next instruction
.quiet  lda #0
        sta AUDV0
        rts

        include "random.inc"
        include "place.inc"
        include "score.inc"

        align 256
; Sixteen entries each, of which the first is shown last; then their colours
Shapes  ds 16,0                 ; nothing
        .byte 0                 ; tulip
        .byte %00011000
        .byte %00111100
        .byte %01111110
        .byte %11011010
        .byte %10011011
        .byte %10011001
        .byte %00011000
        .byte %00111100
        .byte %01111110
        .byte %01111110
        .byte %01111110
        .byte %01100110
        .byte %00100100
        .byte 0, 0
        .byte 0                 ; daisy
        .byte %00011000
        .byte %00011000
        .byte %00111110
        .byte %01111010
        .byte %01011000
        .byte %00011000
        .byte %00110100
        .byte %01111110
        .byte %11100111
        .byte %01100110
        .byte %11100111
        .byte %01111110
        .byte %00101100
        .byte 0, 0
        .byte 0                 ; bee
        .byte %00011000
        .byte %00011000
        .byte %00111100
        .byte %00111100
        .byte %01111110
        .byte %01111110
        .byte %01111110
        .byte %01111110
        .byte %00111100
        .byte %01111110
        .byte %11111111
        .byte %11110111
        .byte %01100110
        .byte 0, 0
        .byte 0                 ; bee, wings folded
        .byte %00011000
        .byte %00011000
        .byte %00111100
        .byte %00111100
        .byte %01111110
        .byte %01111110
        .byte %01111110
        .byte %01111110
        .byte %00111100
        .byte %01111110
        .byte %01100110
        .byte %01000010
        .byte %00000000
        .byte 0, 0
Paint   ds 16,0
        .byte $00, $C4, $C4, $C4, $C4, $C4, $C4, $C4, $42, $42, $42, $44, $44, $44, $00, $00
        .byte $00, $C4, $C4, $C4, $C4, $C4, $C4, $64, $66, $68, $68, $68, $66, $66, $00, $00
        .byte $00, $00, $26, $00, $28, $28, $00, $28, $28, $00, $AC, $AC, $AE, $AE, $00, $00
        .byte $00, $00, $26, $00, $28, $28, $00, $28, $28, $00, $AC, $AC, $AE, $AE, $00, $00
; The gardener, with room for all the lines above and below him
Blank   ds LINES,0
Man     .byte 0
        .byte %01100110
        .byte %00100100
        .byte %00100100
        .byte %00111100
        .byte %00111100
        .byte %10111101
        .byte %11111111
        .byte %01111110
        .byte %00111100
        .byte %00111100
        .byte %00111100
        .byte %11111111
        .byte %01111110
        .byte %00111100
        ds LINES,0
Man2    .byte 0
        .byte %11000011
        .byte %01000010
        .byte %01100110
        .byte %00111100
        .byte %00111100
        .byte %10111101
        .byte %11111111
        .byte %01111110
        .byte %00111100
        .byte %00111100
        .byte %00111100
        .byte %11111111
        .byte %01111110
        .byte %00111100
        ds LINES,0
        .byte $00, $02, $02, $82, $84, $84, $86, $86, $3C, $3E, $3E, $34, $38
ManPaint .byte $36

CellAt  .byte 4,16,28,40,52,64,76,88,100,112,124,136,148
RowAt   .byte 0,13,26,39,52,65,78,91

; Garden 1
; ########################################
; #                 #  #                 #
; #  #############  #  #  #############  #
; #           #  #        #  #           #
; #  ####  #  #  #  #  #  #  #  #  ####  #
; #  #        #     #  #     #        #  #
; #  #  #######  ####  ####  #######  #  #
; #  #  #     #              #     #  #  #
; #  ####  #  ################  #  ####  #
; #        #                    #        #
; #######  #  #######  #######  #  #######
; #        #  #              #  #        #
; #  #  ####  #  ####  ####  #  ####  #  #
; #  #        #  #        #  #        #  #
; #  ####  #  #  #  ####  #  #  #  ####  #
; #        #     #        #     #        #
; ########################################
; Garden 2
; ########################################
; #     #                          #     #
; #  #  #  #  #  ####  ####  #  #  #  #  #
; #  #        #  #  #  #  #  #        #  #
; #  #  #  ####  #  #  #  #  ####  #  #  #
; #  #  #  #     #  #  #  #     #  #  #  #
; #  #  ####  #  #  #  #  #  #  ####  #  #
; #  #           #  #  #  #           #  #
; #  #  #  #######  #  #  #######  #  #  #
; #     #  #  #     #  #     #  #  #     #
; #  ####  #  #  ####  ####  #  #  ####  #
; #  #  #     #     #  #     #     #  #  #
; #  #  ##########  #  #  ##########  #  #
; #     #     #              #     #     #
; #######  ####  ####  ####  ####  #######
; #                                      #
; ########################################
; Garden 3
; ########################################
; #  #        #              #        #  #
; #  #  #  #  #  ####  ####  #  #  #  #  #
; #  #     #     #        #     #     #  #
; #  #  #######  #  #  #  #  #######  #  #
; #  #           #  #  #  #           #  #
; #  ####  #######  ####  #######  ####  #
; #              #        #              #
; #  ####  #  #######  #######  #  ####  #
; #     #  #                    #  #     #
; ####  #  #  #######  #######  #  #  ####
; #        #     #        #     #        #
; #  #############  #  #  #############  #
; #        #     #  #  #  #     #        #
; #  #  #  #  #  #  ####  #  #  #  #  #  #
; #     #     #              #     #     #
; ########################################
Maze0   .byte $F0,$10,$90,$10,$90,$90,$90,$90,$90,$10,$F0,$10,$90,$90,$90,$10,$F0
        .byte $F0,$10,$90,$90,$90,$90,$90,$90,$90,$10,$90,$90,$90,$10,$F0,$10,$F0
        .byte $F0,$90,$90,$90,$90,$90,$90,$10,$90,$10,$F0,$10,$90,$10,$90,$10,$F0
Maze1   .byte $FF,$00,$FF,$00,$E4,$00,$3F,$20,$E4,$04,$E4,$04,$3C,$00,$E4,$04,$FF
        .byte $FF,$20,$24,$00,$27,$24,$3C,$00,$27,$24,$E4,$20,$3F,$20,$E7,$00,$FF
        .byte $FF,$00,$24,$04,$3F,$00,$E7,$00,$E4,$24,$24,$04,$FF,$04,$24,$20,$FF
Maze2   .byte $FF,$40,$4F,$09,$49,$41,$79,$01,$FF,$00,$7F,$01,$79,$09,$C9,$08,$FF
        .byte $FF,$00,$79,$49,$49,$48,$49,$48,$4F,$41,$79,$41,$4F,$01,$79,$00,$FF
        .byte $FF,$01,$79,$08,$49,$48,$CF,$08,$7F,$00,$7F,$08,$4F,$48,$C9,$01,$FF

; Which ways lead on from each cell: 1 up, 2 down, 4 left, 8 right. Thirteen in a row, eight rows.
Ways1   .byte 10,12,12,12,12, 6, 2,10,12,12,12,12, 6
        .byte 11,12,14, 6, 2,11,15, 7, 2,10,14,12, 7
        .byte  3,10,13, 5,11, 5, 3, 9, 7, 9,13, 6, 3
        .byte  3, 1,10, 6, 9,12,13,12, 5,10, 6, 1, 3
        .byte  9,12, 7,11,12,12,14,12,12, 7,11,12, 5
        .byte 10,14, 5, 3,10,12,15,12, 6, 3, 9,14, 6
        .byte  3, 9,14, 7, 3,10,13, 6, 3,11,14, 5, 3
        .byte  9,12, 5, 9, 5, 9,12, 5, 9, 5, 9,12, 5
Ways2   .byte 10, 6,10,14,14,12,14,12,14,14, 6,10, 6
        .byte  3,11,15, 5, 3, 2, 3, 2, 3, 9,15, 7, 3
        .byte  3, 3, 1,10, 7, 3, 3, 3,11, 6, 1, 3, 3
        .byte  3,11,14,13, 5, 3, 3, 3, 9,13,14, 7, 3
        .byte 11, 5, 3, 2,10, 5, 3, 9, 6, 2, 3, 9, 7
        .byte  3, 2, 9, 5, 9, 6, 3,10, 5, 9, 5, 2, 3
        .byte  9, 5,10, 4,10,13,15,13, 6, 8, 6, 9, 5
        .byte  8,12,13,12,13,12,13,12,13,12,13,12, 4
Ways3   .byte  2,10,14, 6,10,12,14,12, 6,10,14, 6, 2
        .byte  3,11, 5, 9, 7,10,15, 6,11, 5, 9, 7, 3
        .byte  3, 9,14,12, 5, 3, 1, 3, 9,12,14, 5, 3
        .byte 11,12,15,14, 4, 9,14, 5, 8,14,15,12, 7
        .byte  9, 6, 3,11,12,12,15,12,12, 7, 3,10, 5
        .byte 10,13, 5, 9, 4,10,15, 6, 8, 5, 9,13, 6
        .byte 11,14, 6,10, 6, 3, 1, 3,10, 6,10,14, 7
        .byte  9, 5, 9, 5, 9,13,12,13, 5, 9, 5, 9, 5

        echo "hedgerow:", [$FFFC-*]d, "bytes free"
        org $FFFC
        .word Start
        .word Start
