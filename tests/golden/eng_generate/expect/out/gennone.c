
/* passed 10 */
