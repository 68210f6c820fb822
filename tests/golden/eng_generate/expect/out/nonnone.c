
/* passed 1 */
